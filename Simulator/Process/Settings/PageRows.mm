#include "PageRows.h"

#include "Preferences/Application/SettingsApplication.h"
#include "Preferences/Lists/PSListController+Further.h"
#include "Preferences/Specifiers/PSSpecifier+Further.h"
#include "Preferences/Specifiers/SpecifierState.h"
#include "UIKit/Images/ImageState.h"
#include "UIKit/Tables/UITableView+Further.h"

namespace sim {

namespace {

std::string text(NSString *string) { return string ? [string UTF8String] : ""; }

std::string kindOf(PSSpecifier *specifier) {
    switch ([specifier cellType]) {
    case PSSwitchCell:
        return "switch";
    case PSLinkCell:
        return "link";
    case PSLinkListCell:
        return "choice";
    case PSSegmentCell:
        return "segment";
    case PSButtonCell:
    case PSListItemCell:
        return "button";
    default:
        return "text";
    }
}

Array choices(PSSpecifier *specifier) {
    Array result;
    for (id value in [specifier values]) {
        NSString *title = [[specifier titleDictionary] objectForKey:value];
        result.emplace_back(text(title ? title : [value description]));
    }
    return result;
}

// A switch's state, else what the row shows of the value.
Value valueOf(PSSpecifier *specifier, const std::string &kind) {
    id value = [specifier performGetter];
    if (kind == "switch") return [value respondsToSelector:@selector(boolValue)] && [value boolValue];
    if (!value) return {};
    NSString *title = [specifier titleForValue:value];
    if (kind == "choice" || kind == "segment") return title ? Value(text(title)) : Value();
    return text([value description]);
}

// The file that the icon came from; "drawn" for one without.
Value iconOf(PSSpecifier *specifier) {
    UIImage *image = [specifier propertyForKey:@"iconImage"];
    if (!image) return {};
    const auto &source = state(image).source;
    return source.empty() ? "drawn" : source;
}

NSString *footerOf(PSListController *list, NSInteger section) {
    return [list tableView:[list table] titleForFooterInSection:section];
}

} // namespace

PSListController *frontList() {
    UIViewController *page = frontPage();
    return [page isKindOfClass:[PSListController class]] ? static_cast<PSListController *>(page) : nil;
}

std::vector<PageRow> pageRows(PSListController *list) {
    std::vector<PageRow> result;
    for (NSInteger section = 0; section < [list numberOfGroups]; ++section) {
        NSInteger rows = [list tableView:[list table] numberOfRowsInSection:section];
        for (NSInteger row = 0; row < rows; ++row) {
            NSIndexPath *path = [NSIndexPath indexPathForRow:row inSection:section];
            PSSpecifier *specifier = [list specifierAtIndex:[list indexForIndexPath:path]];
            result.push_back({specifier, text([specifier name]), kindOf(specifier), path});
        }
    }
    return result;
}

Value describeRow(PSListController *list, const PageRow &row) {
    Object result{{"label", row.label}, {"kind", row.kind}};
    Value value = valueOf(row.specifier, row.kind), icon = iconOf(row.specifier);
    NSString *footer = footerOf(list, [row.path section]);
    if (!value.isNull()) result.emplace("value", value);
    if (!icon.isNull()) result.emplace("icon", icon);
    if (footer) result.emplace("footer", text(footer));
    if ([[row.specifier values] count]) result.emplace("choices", choices(row.specifier));
    return result;
}

} // namespace sim

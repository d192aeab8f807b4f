#include "PendixSettings/Core/Rows.h"

#include "PendixSettings/Core/PaneTranslator.h"
#include "PendixSettings/Core/blueSwitcher.h"

namespace pendix::pane {

PSSpecifier *Rows::add(NSString *name, SEL setter, SEL getter, Class detail, PSCellType cell) {
    PSSpecifier *row = [PSSpecifier preferenceSpecifierNamed:name
                                                      target:page_
                                                         set:setter
                                                         get:getter
                                                      detail:detail
                                                        cell:cell
                                                        edit:Nil];
    [rows_ addObject:row];
    return row;
}

Rows &Rows::group(NSString *footerKey) {
    group_ = [PSSpecifier emptyGroupSpecifier];
    if (footerKey) explain(group_, footerKey);
    [rows_ addObject:group_];
    return *this;
}

PSSpecifier *Rows::header(NSString *cellClass) {
    PSSpecifier *group = add(@"", nullptr, nullptr, Nil, PSGroupCell);
    [group setProperty:cellClass forKey:@"headerCellClass"];
    return group;
}

PSSpecifier *Rows::toggle(NSString *key, SEL setter, SEL getter) {
    PSSpecifier *row = add(shownText(key), setter, getter, Nil, PSSwitchCell);
    [row setProperty:[blueSwitcher class] forKey:@"cellClass"];
    return row;
}

PSSpecifier *Rows::link(NSString *key, Class page, NSString *iconFile) {
    return namedLink(shownText(key), page, iconFile ? [UIImage imageWithContentsOfFile:iconFile] : nil);
}

PSSpecifier *Rows::namedLink(NSString *name, Class page, UIImage *icon) {
    PSSpecifier *row = add(name, nullptr, nullptr, page, PSLinkCell);
    setIcon(row, icon);
    return row;
}

PSSpecifier *Rows::button(NSString *key, PSCellType cell, SEL action) {
    PSSpecifier *row = add(shownText(key), nullptr, nullptr, Nil, cell);
    row.buttonAction = action;
    return row;
}

PSSpecifier *Rows::choice(NSString *key, NSArray *values, Class page) {
    PSSpecifier *row =
        add(shownText(key), @selector(setValue:forSpecifier:), @selector(getValue:), page, PSLinkListCell);
    NSMutableArray *titles = [NSMutableArray array];
    for (NSString *value in values) [titles addObject:shownText(value)];
    [row setValues:values titles:titles];
    return row;
}

PSSpecifier *Rows::segments(NSString *key, NSArray *values) {
    PSSpecifier *row = add(shownText(key), @selector(setValue:forSpecifier:), @selector(getValue:),
                           [PSListItemsController class], PSSegmentCell);
    [row setValues:values titles:values];
    return row;
}

void explain(PSSpecifier *group, NSString *footerKey) {
    [group setProperty:shownText(footerKey) forKey:@"footerText"];
}

void setIcon(PSSpecifier *row, UIImage *icon) {
    if (icon) [row setProperty:icon forKey:@"iconImage"];
}

} // namespace pendix::pane

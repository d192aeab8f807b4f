#include "ListState.h"

#include "PSListController+Further.h"
#include "Preferences/Cells/PSTableCell+Further.h"
#include "Preferences/Specifiers/PSSpecifier+Further.h"
#include "Preferences/Specifiers/SpecifierState.h"
#include "Runtime/Objc/LazyState.hpp"
#include "UIKit/UIKit+Further.h"

#include <UIKit/UIContentSizeCategory.h>
#include <UIKit/UITableView.h>

#include <algorithm>
#include <cmath>

namespace sim {

ListState &state(PSListController *list) {
    return lazyState<ListState>(list->_listControllerState,
                                [] { return new ListState{.byIdentifier = [NSMutableDictionary new]}; });
}

} // namespace sim

using sim::state;

@implementation PSListController

- (void)dealloc {
    auto &mine = state(self);
    [mine.table setDataSource:nil];
    [mine.table setDelegate:nil];
    [self dropViewsOfSpecifiers:_specifiers];
    [mine.table release];
    [mine.byIdentifier release];
    [_specifiers release];
    delete &mine;
    [super dealloc];
}

- (void)loadView {
    [super loadView];
    UIView *view = [self view];
    UITableView *table = [[UITableView alloc] initWithFrame:[view bounds] style:UITableViewStyleGrouped];
    [table setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight];
    [view setBackgroundColor:[table backgroundColor]];
    state(self).table = table;
    [view addSubview:table];
}

- (void)viewDidLoad {
    [super viewDidLoad];
    [self rebuildIndex];
    [state(self).table setDataSource:self];
    [state(self).table setDelegate:self];
}

- (void)viewWillAppear:(BOOL)animated {
    [super viewWillAppear:animated];
    UITableView *table = state(self).table;
    [table deselectRowAtIndexPath:[table indexPathForSelectedRow] animated:animated];
}

- (UITableView *)table {
    [self view];
    return state(self).table;
}

- (NSArray *)specifiers {
    return _specifiers;
}

- (void)setSpecifiers:(NSArray *)specifiers {
    [specifiers retain];
    [self dropViewsOfSpecifiers:_specifiers];
    [_specifiers release];
    _specifiers = specifiers;
    [self rebuildIndex];
    [state(self).table reloadData];
}

- (void)reloadSpecifiers {
    NSArray *old = _specifiers;
    _specifiers = nil;
    [self specifiers];
    [self dropViewsOfSpecifiers:old];
    [self rebuildIndex];
    [state(self).table reloadData];
    [old release];
}

- (void)reload {
    [self rebuildIndex];
    [state(self).table reloadData];
}

- (NSInteger)numberOfGroups {
    return static_cast<NSInteger>(state(self).groups.size());
}

- (NSInteger)numberOfSectionsInTableView:(UITableView *)tableView {
    return [self numberOfGroups];
}

- (NSInteger)tableView:(UITableView *)tableView numberOfRowsInSection:(NSInteger)section {
    return static_cast<NSInteger>(state(self).groups[static_cast<size_t>(section)].rows);
}

- (PSSpecifier *)specifierAtPath:(NSIndexPath *)path {
    return [self specifierAtIndex:[self indexForIndexPath:path]];
}

- (UITableViewCell *)tableView:(UITableView *)tableView cellForRowAtIndexPath:(NSIndexPath *)indexPath {
    PSSpecifier *specifier = [self specifierAtPath:indexPath];
    Class cellClass = [PSTableCell cellClassForSpecifier:specifier];
    NSString *identifier = [NSString
        stringWithFormat:@"%@-%ld", NSStringFromClass(cellClass), static_cast<long>([specifier cellType])];
    auto *cell = static_cast<PSTableCell *>([tableView dequeueReusableCellWithIdentifier:identifier]);
    if (!cell)
        cell = [[[cellClass alloc] initWithStyle:UITableViewCellStyleValue1
                                 reuseIdentifier:identifier
                                       specifier:specifier] autorelease];
    [cell refreshCellContentsWithSpecifier:specifier];
    return cell;
}

- (CGFloat)tableView:(UITableView *)tableView heightForRowAtIndexPath:(NSIndexPath *)indexPath {
    id height = [[self specifierAtPath:indexPath] propertyForKey:@"height"];
    if (height) return [height doubleValue];
    // Rows grow with their texts (by how much, inferred).
    constexpr CGFloat kAroundText = 20;
    UIFont *font = [UIFont preferredFontForTextStyle:UIFontTextStyleBody];
    return std::max([tableView rowHeight], std::ceil([font lineHeight]) + kAroundText);
}

- (NSString *)tableView:(UITableView *)tableView titleForHeaderInSection:(NSInteger)section {
    return [state(self).groups[static_cast<size_t>(section)].group name];
}
- (NSString *)tableView:(UITableView *)tableView titleForFooterInSection:(NSInteger)section {
    return [state(self).groups[static_cast<size_t>(section)].group propertyForKey:@"footerText"];
}

- (UIView *)tableView:(UITableView *)tableView viewForHeaderInSection:(NSInteger)section {
    return [self customViewForGroup:section isHeader:YES];
}
- (UIView *)tableView:(UITableView *)tableView viewForFooterInSection:(NSInteger)section {
    return [self customViewForGroup:section isHeader:NO];
}

- (CGFloat)heightOf:(UIView *)view in:(UITableView *)tableView {
    constexpr CGFloat kTablesOwn = -1;
    if (!view) return kTablesOwn;
    CGFloat width = [tableView bounds].size.width;
    auto *custom = static_cast<id<PSHeaderFooterView>>(view);
    if ([custom respondsToSelector:@selector(preferredHeightForWidth:inTableView:)])
        return [custom preferredHeightForWidth:width inTableView:tableView];
    if ([custom respondsToSelector:@selector(preferredHeightForWidth:)])
        return [custom preferredHeightForWidth:width];
    return [view bounds].size.height;
}
- (CGFloat)tableView:(UITableView *)tableView heightForHeaderInSection:(NSInteger)section {
    return [self heightOf:[self customViewForGroup:section isHeader:YES] in:tableView];
}
- (CGFloat)tableView:(UITableView *)tableView heightForFooterInSection:(NSInteger)section {
    return [self heightOf:[self customViewForGroup:section isHeader:NO] in:tableView];
}

// Rows with controls, and texts, are not there to be pressed.
- (BOOL)tableView:(UITableView *)tableView shouldHighlightRowAtIndexPath:(NSIndexPath *)indexPath {
    PSCellType type = [[self specifierAtPath:indexPath] cellType];
    return type == PSLinkCell || type == PSLinkListCell || type == PSListItemCell || type == PSButtonCell;
}

- (void)tableView:(UITableView *)tableView didSelectRowAtIndexPath:(NSIndexPath *)indexPath {
    PSSpecifier *specifier = [self specifierAtPath:indexPath];
    bool button = [specifier cellType] == PSButtonCell;
    Class detail = [specifier detailControllerClass];
    if (button || !detail) {
        [tableView deselectRowAtIndexPath:indexPath animated:YES];
        [specifier performAction];
        return;
    }
    UIViewController *page = [[[detail alloc] init] autorelease];
    if ([page isKindOfClass:[PSViewController class]]) {
        [static_cast<PSViewController *>(page) setSpecifier:specifier];
    } else if (![page title]) {
        [page setTitle:[specifier name]];
    }
    [self pushController:page animated:YES];
}

@end

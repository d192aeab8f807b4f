// Finding the specifiers of a list, and showing single ones anew.
#include "ListState.h"

#include "PSListController+Further.h"
#include "Preferences/Cells/PSTableCell+Further.h"
#include "Preferences/Specifiers/PSSpecifier+Further.h"
#include "Preferences/Specifiers/SpecifierState.h"
#include "UIKit/Tables/UITableView+Further.h"

#include <UIKit/UITableView.h>

using sim::state;

namespace {

std::optional<sim::RowPosition> positionIn(PSListController *list, NSInteger index) {
    if (index < 0) return std::nullopt;
    return sim::positionOf(state(list).groups, static_cast<size_t>(index));
}

} // namespace

@implementation PSListController (Indexing)

- (void)rebuildIndex {
    auto &mine = state(self);
    NSArray *specifiers = [self specifiers];
    mine.groups = sim::groupsOf(specifiers);
    [mine.byIdentifier removeAllObjects];
    for (PSSpecifier *specifier in specifiers)
        if (NSString *identifier = [specifier identifier])
            [mine.byIdentifier setObject:specifier forKey:identifier];
}

- (UIView *)customViewForGroup:(NSInteger)section isHeader:(BOOL)header {
    PSSpecifier *group = state(self).groups[static_cast<size_t>(section)].group;
    Class wanted = [group classForProperty:header ? @"headerCellClass" : @"footerCellClass"];
    if (!wanted || ![wanted instancesRespondToSelector:@selector(initWithSpecifier:)]) return nil;
    NSString *key = header ? PSHeaderViewKey : PSFooterViewKey;
    UIView *view = [group propertyForKey:key];
    if (!view) {
        view = [[static_cast<id<PSHeaderFooterView>>([wanted alloc]) initWithSpecifier:group] autorelease];
        [group setProperty:view forKey:key];
    }
    return view;
}

- (void)dropViewsOfSpecifiers:(NSArray *)specifiers {
    for (PSSpecifier *specifier in specifiers)
        for (NSString *key in
             [NSArray arrayWithObjects:PSHeaderViewKey, PSFooterViewKey, PSTableCellKey, nil])
            [specifier removePropertyForKey:key];
}

@end

@implementation PSListController (SingleSpecifiers)

- (PSSpecifier *)specifierForID:(NSString *)identifier {
    return identifier ? [state(self).byIdentifier objectForKey:identifier] : nil;
}

- (PSSpecifier *)specifierAtIndex:(NSInteger)index {
    NSArray *specifiers = [self specifiers];
    bool exists = index >= 0 && index < static_cast<NSInteger>([specifiers count]);
    return exists ? [specifiers objectAtIndex:static_cast<NSUInteger>(index)] : nil;
}

// By identity, as rows are found.
- (NSInteger)indexOfSpecifier:(PSSpecifier *)specifier {
    NSUInteger index = [[self specifiers] indexOfObjectIdenticalTo:specifier];
    return static_cast<NSInteger>(index);
}

- (NSInteger)indexOfSpecifierID:(NSString *)identifier {
    PSSpecifier *specifier = [self specifierForID:identifier];
    return specifier ? [self indexOfSpecifier:specifier] : static_cast<NSInteger>(NSNotFound);
}

- (BOOL)getGroup:(NSInteger *)group row:(NSInteger *)row ofSpecifierAtIndex:(NSInteger)index {
    auto position = positionIn(self, index);
    if (!position) return NO;
    if (group) *group = static_cast<NSInteger>(position->group);
    if (row) *row = position->row ? static_cast<NSInteger>(*position->row) : -1;
    return YES;
}

- (NSInteger)indexForIndexPath:(NSIndexPath *)indexPath {
    const auto &groups = state(self).groups;
    return static_cast<NSInteger>(groups[static_cast<size_t>([indexPath section])].first) + [indexPath row];
}

- (id)cachedCellForSpecifier:(PSSpecifier *)specifier {
    auto position = positionIn(self, [self indexOfSpecifier:specifier]);
    if (!position || !position->row) return nil;
    return [state(self).table
        cellForRowAtIndexPath:[NSIndexPath indexPathForRow:static_cast<NSInteger>(*position->row)
                                                 inSection:static_cast<NSInteger>(position->group)]];
}

- (void)reloadSpecifier:(PSSpecifier *)specifier {
    [self reloadSpecifier:specifier animated:NO];
}
- (void)reloadSpecifier:(PSSpecifier *)specifier animated:(BOOL)animated {
    NSInteger index = [self indexOfSpecifier:specifier];
    if (index != static_cast<NSInteger>(NSNotFound)) [self reloadSpecifierAtIndex:index animated:animated];
}
- (void)reloadSpecifierAtIndex:(NSInteger)index {
    [self reloadSpecifierAtIndex:index animated:NO];
}

// A row is refreshed in its cell, which keeps the finger's highlight; a group is made anew with all it shows.
- (void)reloadSpecifierAtIndex:(NSInteger)index animated:(BOOL)animated {
    auto position = positionIn(self, index);
    UITableView *table = state(self).table;
    if (!position || !table) return;
    PSSpecifier *specifier = [self specifierAtIndex:index];
    if (position->row)
        return [static_cast<PSTableCell *>([self cachedCellForSpecifier:specifier])
            refreshCellContentsWithSpecifier:specifier];
    [self dropViewsOfSpecifiers:[NSArray arrayWithObject:specifier]];
    [table reloadSections:[NSIndexSet indexSetWithIndex:position->group]
         withRowAnimation:animated ? UITableViewRowAnimationFade : UITableViewRowAnimationNone];
}

- (void)reloadSpecifierID:(NSString *)identifier {
    [self reloadSpecifierID:identifier animated:NO];
}
- (void)reloadSpecifierID:(NSString *)identifier animated:(BOOL)animated {
    [self reloadSpecifierAtIndex:[self indexOfSpecifierID:identifier] animated:animated];
}

@end

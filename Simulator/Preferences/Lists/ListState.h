// The simulator's side of PSListController.
#pragma once

#include "SpecifierGroups.h"

#include <Preferences/PSListController.h>

namespace sim {

struct ListState {
    UITableView *table = nil;                // retained
    std::vector<SpecifierGroup> groups;      // of `_specifiers` at the last change
    NSMutableDictionary *byIdentifier = nil; // retained
};

ListState &state(PSListController *list);

} // namespace sim

@interface PSListController (Indexing)
// Groups and identifiers anew from the specifiers.
- (void)rebuildIndex;
// The view that a group's class makes for above or below its rows; nil without such a class. Made once.
- (UIView *)customViewForGroup:(NSInteger)section isHeader:(BOOL)header;
// Gives up the cells and views that specifiers hold.
- (void)dropViewsOfSpecifiers:(NSArray *)specifiers;
@end

#include "PSListController+Further.h"
#include "Preferences/Specifiers/PSSpecifier+Further.h"
#include "Preferences/Specifiers/SpecifierState.h"
#include "Runtime/Objc/LazyState.hpp"
#include "UIKit/UIKit+Further.h"

#include <Preferences/PSListController.h>

namespace {

struct ListItemsState {
    NSInteger chosen = -1;
};

ListItemsState &state(PSListItemsController *list) {
    return sim::lazyState<ListItemsState>(list->_listItemsControllerState);
}

// The whole titles, where a row shows the short ones.
NSString *wholeTitle(PSSpecifier *specifier, id value) {
    NSString *title = [[specifier titleDictionary] objectForKey:value];
    return title ? title : [value description];
}

} // namespace

@implementation PSListItemsController

- (void)dealloc {
    delete &state(self);
    [super dealloc];
}

- (NSArray *)specifiers {
    if (_specifiers) return _specifiers;
    NSMutableArray *result = [NSMutableArray arrayWithObject:[PSSpecifier emptyGroupSpecifier]];
    for (id value in [[self specifier] values])
        [result addObject:[PSSpecifier preferenceSpecifierNamed:wholeTitle([self specifier], value)
                                                         target:self
                                                            set:nullptr
                                                            get:nullptr
                                                         detail:Nil
                                                           cell:PSListItemCell
                                                           edit:Nil]];
    _specifiers = [result retain];
    return _specifiers;
}

- (void)viewWillAppear:(BOOL)animated {
    [super viewWillAppear:animated];
    id value = [[self specifier] performGetter];
    NSUInteger index = value ? [[[self specifier] values] indexOfObject:value] : NSNotFound;
    state(self).chosen = index == NSNotFound ? -1 : static_cast<NSInteger>(index);
    [self showTicks];
}

- (void)showTicks {
    for (NSIndexPath *path in [[self table] indexPathsForVisibleRows])
        [self tick:[[self table] cellForRowAtIndexPath:path] at:path];
}

- (void)tick:(UITableViewCell *)cell at:(NSIndexPath *)path {
    bool chosen = [path row] == state(self).chosen;
    [cell setAccessoryType:chosen ? UITableViewCellAccessoryCheckmark : UITableViewCellAccessoryNone];
    [[cell textLabel] setTextColor:[UIColor blackColor]];
}

- (void)tableView:(UITableView *)tableView
      willDisplayCell:(UITableViewCell *)cell
    forRowAtIndexPath:(NSIndexPath *)path {
    [self tick:cell at:path];
}

// The setter hears of it even when the value stays the same; the row that led here shows it when it is back.
- (void)tableView:(UITableView *)tableView didSelectRowAtIndexPath:(NSIndexPath *)path {
    [tableView deselectRowAtIndexPath:path animated:YES];
    state(self).chosen = [path row];
    [self showTicks];
    PSSpecifier *specifier = [self specifier];
    [specifier performSetterWithValue:[[specifier values] objectAtIndex:static_cast<NSUInteger>([path row])]];
    if ([[self parentController] respondsToSelector:@selector(reloadSpecifier:)])
        [[self parentController] reloadSpecifier:specifier];
}

@end

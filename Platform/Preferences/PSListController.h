// The pages of the Settings application.
#pragma once

#include <Preferences/PSTableCell.h>

// A page of the Settings application, opened from a row's specifier.
@interface PSViewController : UIViewController {
@public
    void *_preferencesControllerState;
}
@property (nonatomic, retain) PSSpecifier *specifier;
@end

// A grouped table of specifiers. Subclasses override `specifiers`, which fills `_specifiers` when that is
// nil.
@interface PSListController : PSViewController <UITableViewDataSource, UITableViewDelegate> {
@public
    NSArray *_specifiers; // retained
    void *_listControllerState;
}
- (NSArray *)specifiers;
- (UITableView *)table;

// Drops the specifiers, asks for them anew and loads the table again.
- (void)reloadSpecifiers;
@end

@interface PSListController (SingleSpecifiers)
- (void)reloadSpecifierAtIndex:(NSInteger)index;
- (void)reloadSpecifierAtIndex:(NSInteger)index animated:(BOOL)animated;
@end

// The page of a link list's choices; a tap on one sets it and leaves the page open.
@interface PSListItemsController : PSListController {
@public
    void *_listItemsControllerState;
}
@end

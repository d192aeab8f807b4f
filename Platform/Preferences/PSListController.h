// The pages of the Settings application.
#pragma once

#include <Preferences/PSTableCell.h>

// A page of the Settings application, opened from a row's specifier.
@interface PSViewController : UIViewController {
@public
    void *_preferencesControllerState;
}
@property (nonatomic, retain) PSSpecifier *specifier;
@property (nonatomic, assign) id parentController;
@property (nonatomic, assign) id rootController;
// Through the specifier's getter and setter; without them nil and nothing.
- (id)readPreferenceValue:(PSSpecifier *)specifier;
- (void)setPreferenceValue:(id)value specifier:(PSSpecifier *)specifier;
- (void)pushController:(UIViewController *)controller;
- (void)pushController:(UIViewController *)controller animated:(BOOL)animated;
@end

// A grouped table of specifiers. Subclasses override `specifiers`, which fills `_specifiers` when that is
// nil.
@interface PSListController : PSViewController <UITableViewDataSource, UITableViewDelegate> {
@public
    NSArray *_specifiers; // retained
    void *_listControllerState;
}
- (NSArray *)specifiers;
- (void)setSpecifiers:(NSArray *)specifiers;
- (UITableView *)table;

// Drops the specifiers, asks for them anew and loads the table again.
- (void)reloadSpecifiers;
// Loads the table again from the same specifiers.
- (void)reload;
- (NSInteger)numberOfGroups;
@end

@interface PSListController (SingleSpecifiers)
// The row whose specifier is that very object; a group reloads its rows, header and footer. Nothing for one
// that is not listed.
- (void)reloadSpecifier:(PSSpecifier *)specifier;
- (void)reloadSpecifier:(PSSpecifier *)specifier animated:(BOOL)animated;
- (void)reloadSpecifierAtIndex:(NSInteger)index;
- (void)reloadSpecifierAtIndex:(NSInteger)index animated:(BOOL)animated;
- (void)reloadSpecifierID:(NSString *)identifier;
- (void)reloadSpecifierID:(NSString *)identifier animated:(BOOL)animated;

// By identifier, as of the last viewDidLoad, setSpecifiers: or reloadSpecifiers; nil when there is none.
- (PSSpecifier *)specifierForID:(NSString *)identifier;
- (PSSpecifier *)specifierAtIndex:(NSInteger)index;
- (NSInteger)indexOfSpecifier:(PSSpecifier *)specifier; // NSNotFound
- (NSInteger)indexOfSpecifierID:(NSString *)identifier; // NSNotFound
// Both set to NO for an index past the last specifier.
- (BOOL)getGroup:(NSInteger *)group row:(NSInteger *)row ofSpecifierAtIndex:(NSInteger)index;
- (NSInteger)indexForIndexPath:(NSIndexPath *)indexPath;
- (id)cachedCellForSpecifier:(PSSpecifier *)specifier;
@end

// The page of a link list's choices; a tap on one sets it and leaves the page open.
@interface PSListItemsController : PSListController {
@public
    void *_listItemsControllerState;
}
@end

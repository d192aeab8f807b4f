// What the platform has beyond <Preferences/PSListController.h>: used by the simulator and its tests only.
#pragma once

#include <Preferences/PSListController.h>

@interface PSViewController (Further)
@property (nonatomic, assign) id parentController;
@property (nonatomic, assign) id rootController;
// Through the specifier's getter and setter; without them nil and nothing.
- (id)readPreferenceValue:(PSSpecifier *)specifier;
- (void)setPreferenceValue:(id)value specifier:(PSSpecifier *)specifier;
- (void)pushController:(UIViewController *)controller;
- (void)pushController:(UIViewController *)controller animated:(BOOL)animated;
@end

@interface PSListController (Further)
- (void)setSpecifiers:(NSArray *)specifiers;
// Loads the table again from the same specifiers.
- (void)reload;
- (NSInteger)numberOfGroups;
// The row whose specifier is that very object; a group reloads its rows, header and footer. Nothing for one
// that is not listed.
- (void)reloadSpecifier:(PSSpecifier *)specifier;
- (void)reloadSpecifier:(PSSpecifier *)specifier animated:(BOOL)animated;
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

// The simulator's side of PSSpecifier.
#pragma once

#include <Preferences/PSSpecifier.h>

// The specifier's own view of its row's cell, which a list keeps there.
extern NSString *const PSTableCellKey;
// The views that a group's classes made.
extern NSString *const PSHeaderViewKey, *const PSFooterViewKey;

@interface PSSpecifier (Performing)
// nil without a getter.
- (id)performGetter;
- (void)performSetterWithValue:(id)value;
// The button's action, else the general one. NO when there is none that the target answers.
- (BOOL)performAction;
- (BOOL)isGroup;
// A class that a property gives, as a class or by its name; Nil without one.
- (Class)classForProperty:(NSString *)key;
// The title of a value, the short one where there is one; nil for a value that is none of the list's.
- (NSString *)titleForValue:(id)value;
@end

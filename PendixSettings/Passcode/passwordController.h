#pragma once

#include "PendixSettings/Core/PendixListController.h"

// The panel's lock and its passcode. Entering the page and changing the lock take the code that is stored.
@interface passwordController : PendixListController {
    PSSpecifier *_lockGroup; // with the switch of the lock; not retained, one of the rows
    BOOL _closed;            // the code is wanted on the way in, and was not typed yet
}
// The switch of the lock.
- (id)enable;
- (void)setEnable:(id)value;
// The button that sets a first code or another one.
- (void)changePass;

// Cancel on the way in, and on the other two sheets.
- (void)dismiss;
- (void)dismiss1;
// What was typed on the way in, to change the lock, to change the code.
- (void)textFieldDidChange:(UITextField *)field;
- (void)textFieldDidChange1:(UITextField *)field;
- (void)textFieldDidChange2:(UITextField *)field;
@end

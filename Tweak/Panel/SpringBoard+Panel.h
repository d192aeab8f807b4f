// Opening, following and closing the panel; added to the home screen's application.
#pragma once

#include <SpringBoard/SpringBoard.h>

@interface SpringBoard (PendixPanel)
// Opens the panel out of the indicator, unless `enable` is off.
- (void)tap;
// Closes it back into the indicator; does nothing while it is not shown.
- (void)dismisPendixUI;
// Turns the overlay with the device; the notification's object answers `orientation`.
- (void)pendixWillRotate:(NSNotification *)notification;
@end

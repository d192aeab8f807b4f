// The panel as the rest of the extension sees it. The messages are added to the home screen's application;
// `tap`, which opens it, and `dismisPendixUI`, which closes it, are declared where they are asked for: by the
// indicator and by the lock.
#pragma once

#include "Tweak/Lock/Lock.h"
#include "Tweak/StatusBar/StatusBar.h"

#include <SpringBoard/SpringBoard.h>
#include <UIKit/UIKit.h>

@interface SpringBoard (PendixPanel)
// Builds the panel and animates it out of that item view; does nothing while it is shown.
- (void)prepareUI:(UIStatusBarItemView *)item;
// Turns the overlay with the device; the notification's object answers `orientation`.
- (void)pendixWillRotate:(NSNotification *)notification;
// The first image in the folder whose name has "Portrait" in it; nil when none can be shown. The orientation
// is not looked at.
- (UIImage *)imageForOrientation:(int)orientation path:(NSString *)path;
// Sets the hands of the Clock's icon going.
- (void)liveClock;
- (float)DegreesToRadians:(float)degrees;
- (NSNumber *)DegreesToNumber:(float)degrees; // in radians
@end

namespace pendix {

// Opens the panel out of the indicator, whatever `enable` says; builds nothing while it is shown.
void bringUpPanel(SpringBoard *springBoard);

// Leaves the edit mode: the close marks shrink away.
void endEditing();

} // namespace pendix

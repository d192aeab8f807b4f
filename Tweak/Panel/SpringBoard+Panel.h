// Opening, following and closing the panel; added to the home screen's application.
#pragma once

#include <SpringBoard/SpringBoard.h>
#include <UIKit/UIKit.h>

@interface SpringBoard (PendixPanel)
// Opens the panel out of the indicator, unless `enable` is off.
- (void)tap;
// Builds the panel and animates it out of that item view; does nothing while it is shown.
- (void)prepareUI:(UIStatusBarItemView *)item;
// Closes it back into the indicator; does nothing while it is not shown.
- (void)dismisPendixUI;
// The keypad's button: takes back the last digit; without one closes the panel.
- (void)dismisPendixUIorDelete:(UIButton *)button;
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

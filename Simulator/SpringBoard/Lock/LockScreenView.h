// What the lock screen shows: wallpaper, clock and date, "slide to unlock", and to the left of them the
// passcode screen of a device that has one.
#pragma once

#include "PasscodeView.h"

#include <UIKit/UIKit.h>

@interface SBFLockScreenDateView : UIView {
@public
    void *_dateState;
}
// The device's time and date of this moment.
- (void)update;
@end

@interface SBLockScreenScrollView : UIScrollView
@end

@interface SBLockScreenView : UIView {
@public
    void *_lockViewState;
}
- (instancetype)initWithFrame:(CGRect)frame passcode:(BOOL)passcode;
- (UIScrollView *)scrollView;
- (SBFLockScreenDateView *)dateView;
// nil on a device without a passcode.
- (SBUIPasscodeLockView *)passcodeView;
// After scrolling: the passcode screen's frost comes with it.
- (void)followScrolling;
// As it looks when the display comes on: the clock in sight, no digit entered, the light wandering over the
// words.
- (void)prepareToShow;
- (void)didHide;
@end

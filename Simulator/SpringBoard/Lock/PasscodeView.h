// The screen that asks for the device's passcode: four dots above a pad of digits.
#pragma once

#include <UIKit/UIKit.h>

@class SBUIPasscodeLockView;

@protocol SBUIPasscodeLockViewDelegate <NSObject>
- (void)passcodeLockViewPasscodeEntered:(SBUIPasscodeLockView *)view;
- (void)passcodeLockViewCancelButtonPressed:(SBUIPasscodeLockView *)view;
@end

@interface SBUIPasscodeLockView : UIView {
@public
    void *_passcodeState;
}
// Not retained.
- (void)setDelegate:(id<SBUIPasscodeLockViewDelegate>)delegate;
// The digits entered so far.
- (NSString *)passcode;
// No digit is entered.
- (void)reset;
// The same, and the dots shake.
- (void)resetForFailedPasscode;
@end

// The lock screen: who holds it up, and the controller of what it shows.
#pragma once

#import <Foundation/Foundation.h>
#include <UIKit/UIViewController.h>

// What asked for the lock screen to go; it makes no difference to what happens.
enum { SBUnlockSourceUnknown = 0 };

@interface SBAlert : UIViewController
@end

@interface SBLockScreenViewControllerBase : SBAlert
- (void)prepareForUIUnlock;
@end

@interface SBLockScreenViewController : SBLockScreenViewControllerBase {
@public
    void *_lockScreenState;
}
- (void)_handleDisplayTurnedOff;
// The lock screen is about to go.
- (void)prepareForUIUnlock;
// It is gone.
- (void)finishUIUnlockFromSource:(int)source;
// Asks for the device's passcode, or stops asking.
- (void)setPasscodeLockVisible:(BOOL)visible
                      animated:(BOOL)animated
              withUnlockSource:(int)source
                    andOptions:(id)options;
@end

// Up to 8.0.
@interface SBLockScreenViewController (DisplayOn)
- (void)_handleDisplayTurnedOn;
@end

// From 8.1 on.
@interface SBLockScreenViewController (DisplayOnWithReason)
- (void)_handleDisplayTurnedOn:(id)reason;
@end

@interface SBLockScreenManager : NSObject {
@public
    void *_lockManagerState;
}
+ (instancetype)sharedInstance;
@property (nonatomic, readonly) BOOL isUILocked;
- (SBLockScreenViewController *)lockScreenViewController;
@end

#pragma once

#import <Foundation/Foundation.h>
#include <UIKit/UIViewController.h>

@interface SBLockScreenViewController : UIViewController {
@public
    void *_lockScreenState;
}
- (void)_handleDisplayTurnedOff;
- (void)prepareForUIUnlock;
- (void)finishUIUnlockFromSource:(int)source;
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
- (void)unlockUIFromSource:(int)source withOptions:(id)options;
@end

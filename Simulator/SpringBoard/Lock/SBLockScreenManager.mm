#include "LockState.h"

#include <SpringBoard/SBLockScreen.h>

namespace sim {

LockState &lockState() {
    static LockState state;
    return state;
}

} // namespace sim

@implementation SBLockScreenManager

+ (instancetype)sharedInstance {
    static SBLockScreenManager *manager = [self new];
    return manager;
}

// The manager is made at launch: there always is one.
+ (instancetype)sharedInstanceIfExists {
    return [self sharedInstance];
}

- (BOOL)isUILocked {
    return sim::lockState().screenLocked;
}

- (SBLockScreenViewController *)lockScreenViewController {
    static SBLockScreenViewController *controller = [SBLockScreenViewController new];
    return controller;
}

- (void)unlockUIFromSource:(int)source withOptions:(id)options {
    if (!sim::lockState().screenLocked) return;
    SBLockScreenViewController *controller = [self lockScreenViewController];
    [controller prepareForUIUnlock];
    sim::lockState().screenLocked = sim::lockState().passcodeLocked = false;
    [controller finishUIUnlockFromSource:source];
}

@end

#include "LockState.h"
#include "LockWindow.h"

#include "SBLockScreenManager+Further.h"
#include "SpringBoard/Switcher/SwitcherScreen.h"
#include "SpringBoard/System/BarStyle.h"
#include "SpringBoard/System/Interface.h"

#include <SpringBoard/SBLockScreen.h>

namespace sim {

const char *const kDevicePasscode = "1234";

LockState &lockState() {
    static LockState state;
    return state;
}

namespace {

void finishUnlock(int source) {
    SBLockScreenViewController *controller = [[SBLockScreenManager sharedInstance] lockScreenViewController];
    [controller prepareForUIUnlock];
    lockState().screenLocked = lockState().passcodeLocked = false;
    turnInterfaceAsWanted();
    hideLockWindow();
    updateStatusBarStyle();
    [controller finishUIUnlockFromSource:source];
}

} // namespace

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

// The application in front stays what it is, behind the lock screen. (Inferred: it hears nothing of it.)
- (void)lockUIFromSource:(int)source withOptions:(id)options {
    sim::lockState().screenLocked = true;
    sim::lockState().passcodeLocked = sim::lockState().passcode;
    sim::closeSwitcher(false);
    sim::setReachability(false);
    sim::turnInterfaceAsWanted();
    sim::showLockWindow();
    sim::updateStatusBarStyle();
}

- (void)unlockUIFromSource:(int)source withOptions:(id)options {
    if (!sim::lockState().screenLocked) return;
    if (!sim::lockState().passcodeLocked) return sim::finishUnlock(source);
    [[self lockScreenViewController] setPasscodeLockVisible:YES
                                                   animated:YES
                                           withUnlockSource:source
                                                 andOptions:options];
}

- (BOOL)attemptUnlockWithPasscode:(NSString *)passcode {
    NSString *right = [NSString stringWithUTF8String:sim::kDevicePasscode];
    if (!sim::lockState().passcodeLocked || ![passcode isEqual:right]) return NO;
    sim::lockState().passcodeLocked = false;
    [self unlockUIFromSource:0 withOptions:nil];
    return YES;
}

@end

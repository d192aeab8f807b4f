// The display going on and off, and what the lock screen is told of it.
#include "LockState.h"

#include "SBLockScreenManager+Further.h"
#include "UIKit/Application/ApplicationState.h"
#include "UIKit/Touch/TouchInput.h"

#include <SpringBoard/SBLockScreen.h>
#include <UIKit/UIKit.h>

namespace sim {

namespace {

constexpr int kButton = 0; // where locking and unlocking come from

SBLockScreenManager *manager() { return [SBLockScreenManager sharedInstance]; }

// Which form a system version has, it sends. (Inferred: the argument is the notification that told of it.)
void tellThatDisplayIsOn() {
    SBLockScreenViewController *controller = [manager() lockScreenViewController];
    if ([controller respondsToSelector:@selector(_handleDisplayTurnedOn:)]) {
        [controller _handleDisplayTurnedOn:[NSNotification notificationWithName:@"SBDisplayTurnedOn"
                                                                         object:nil]];
    } else {
        [controller _handleDisplayTurnedOn];
    }
}

} // namespace

bool displayIsOn() { return display().on; }

void turnDisplay(bool on) {
    if (display().on == on) return;
    display().on = on;
    if (on) return tellThatDisplayIsOn();
    cancelAllTouches();
    [manager() lockUIFromSource:kButton withOptions:nil];
    [[manager() lockScreenViewController] _handleDisplayTurnedOff];
}

void startLocked() { [manager() lockUIFromSource:kButton withOptions:nil]; }

void unlockByPerson() {
    if (!lockState().screenLocked || !displayIsOn()) return;
    if (lockState().passcodeLocked) {
        [manager() attemptUnlockWithPasscode:[NSString stringWithUTF8String:kDevicePasscode]];
    } else {
        [manager() unlockUIFromSource:kButton withOptions:nil];
    }
}

} // namespace sim

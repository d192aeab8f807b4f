#include "FolderOverlay.h"
#include "HomeViews.h"
#include "SpringBoard/Applications/ApplicationLife.h"
#include "SpringBoard/Lock/LockState.h"
#include "SpringBoard/Switcher/SwitcherScreen.h"

#include <SpringBoard/SBLockScreen.h>
#include <SpringBoard/SpringBoard.h>

@implementation SBUIController

+ (instancetype)sharedInstance {
    static SBUIController *controller = [self new];
    return controller;
}

- (UIWindow *)window {
    return sim::homeWindow();
}

// One press of the home button: from the passcode back to the clock, out of the switcher, out of the
// application, out of the folder, or back to the first page.
- (BOOL)clickedMenuButton {
    if (sim::lockState().screenLocked) {
        [[[SBLockScreenManager sharedInstance] lockScreenViewController] setPasscodeLockVisible:NO
                                                                                       animated:YES
                                                                               withUnlockSource:0
                                                                                     andOptions:nil];
        return YES;
    }
    bool switcherClosed = sim::closeSwitcher(true);
    if (sim::frontApplication()) {
        sim::returnToHomeScreen();
        return YES;
    }
    return switcherClosed || sim::closeFolder(true) || sim::scrollToFirstPage();
}

// Opens the switcher, or closes it. Over the lock screen it takes the press and does nothing.
- (BOOL)handleMenuDoubleTap {
    if (!sim::lockState().screenLocked && !sim::closeSwitcher(true)) sim::openSwitcher();
    return YES;
}

@end

#include "LockWindow.h"

#include "LockScreenView.h"
#include "LockState.h"
#include "Runtime/Objc/Versions.hpp"
#include "Runtime/Process/Device.hpp"
#include "SpringBoard/Applications/ApplicationWindow.h"
#include "SpringBoard/Home/HomeViews.h"
#include "UIKit/Application/ApplicationState.h"
#include "UIKit/Application/UIWindow+Further.h"
#include "UIKit/StatusBar/StatusBarData.hpp"

#include <SpringBoard/SBLockScreen.h>

namespace sim {

namespace {

// Above applications and below the status bar. (Inferred.)
constexpr UIWindowLevel kLevel = 950;

UIWindow *window = nil; // retained

void makeWindow() {
    window = [[homeWindowClass() alloc] initWithFrame:CGRectMake(0, 0, device().width, device().height)];
    [window setWindowLevel:kLevel];
    setRole(window, WindowRole::lock);
    [window setRootViewController:[[SBLockScreenManager sharedInstance] lockScreenViewController]];
    everyMinute([] { [[lockScreenView() dateView] update]; });
}

} // namespace

SBLockScreenView *lockScreenView() {
    return static_cast<SBLockScreenView *>(
        [[[SBLockScreenManager sharedInstance] lockScreenViewController] view]);
}

void showLockWindow() {
    if (!window) makeWindow();
    [[window layer] removeAllAnimations];
    [window setAlpha:1];
    [window setUserInteractionEnabled:YES];
    [lockScreenView() prepareToShow];
    [window makeKeyAndVisible];
    display().secureOnly = device().version >= kFirst8;
}

void hideLockWindow() {
    constexpr NSTimeInterval kFade = 0.35;
    display().secureOnly = false;
    [window setUserInteractionEnabled:NO];
    focusFrontWindow();
    [UIView animateWithDuration:kFade
        animations:^{ [window setAlpha:0]; }
        completion:^(BOOL) {
            if (lockState().screenLocked) return;
            [window setHidden:YES];
            [lockScreenView() didHide];
        }];
}

} // namespace sim

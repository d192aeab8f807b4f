#include "BarStyle.h"

#include "SpringBoard/Applications/ApplicationLife.h"
#include "SpringBoard/Applications/Applications.h"
#include "SpringBoard/Lock/LockState.h"
#include "SpringBoard/Switcher/SwitcherScreen.h"
#include "UIKit/StatusBar/StatusBarState.h"
#include "UIKit/StatusBar/StockItems.h"

#include <utility>

namespace sim {

namespace {

StatusBarStyle wantedStyle() {
    if (lockState().screenLocked) return StatusBarStyle::lockScreen;
    return frontApplication() && !switcherIsOpen() ? StatusBarStyle::darkContent
                                                   : StatusBarStyle::lightContent;
}

bool isWanted() {
    SBApplication *front = frontApplication();
    return lockState().screenLocked || switcherIsOpen() || !front || record(front).statusBar;
}

void fade(bool shown) {
    constexpr NSTimeInterval kFade = 0.2;
    UIWindow *window = [[UIApplication sharedApplication] statusBarWindow];
    [UIView animateWithDuration:kFade
                          delay:0
                        options:UIViewAnimationOptionAllowUserInteraction
                     animations:^{ [window setAlpha:shown ? 1 : 0]; }
                     completion:nil];
}

// The lock screen has a clock of its own.
void hideTime(bool hidden) {
    for (UIStatusBarItem *item : statusBarItems())
        if (state(item).viewClass == [UIStatusBarTimeItemView class])
            [statusBarItemView(item) setHidden:hidden];
}

} // namespace

void updateStatusBarStyle() {
    static auto current = StatusBarStyle::lightContent; // as a bar is shown first
    fade(isWanted());
    auto wanted = wantedStyle();
    if (std::exchange(current, wanted) == wanted) return;
    setStatusBarStyle(wanted);
    hideTime(wanted == StatusBarStyle::lockScreen);
}

} // namespace sim

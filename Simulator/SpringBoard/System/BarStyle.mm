#include "BarStyle.h"

#include "SpringBoard/Applications/ApplicationLife.h"
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

// The lock screen has a clock of its own.
void hideTime(bool hidden) {
    for (UIStatusBarItem *item : statusBarItems())
        if (state(item).viewClass == [UIStatusBarTimeItemView class])
            [statusBarItemView(item) setHidden:hidden];
}

} // namespace

void updateStatusBarStyle() {
    static auto current = StatusBarStyle::lightContent; // as a bar is shown first
    auto wanted = wantedStyle();
    if (std::exchange(current, wanted) == wanted) return;
    setStatusBarStyle(wanted);
    hideTime(wanted == StatusBarStyle::lockScreen);
}

} // namespace sim

#include "Interface.h"

#include "Runtime/Process/Device.hpp"
#include "SpringBoard/Applications/ApplicationWindow.h"
#include "SpringBoard/Home/FolderOverlay.h"
#include "SpringBoard/Home/HomeViews.h"
#include "UIKit/Application/ApplicationState.h"
#include "UIKit/StatusBar/StatusBarState.h"

#include <utility>

namespace sim {

namespace {

constexpr NSTimeInterval kTurn = 0.4, kDrop = 0.3; // inferred
constexpr CGFloat kDropPart = 0.4;                 // of the screen's height; inferred

bool reachability = false;

// Home screen, status bar and what is in front. Windows of others stay where they are.
void placeWindows() {
    UIApplication *application = [UIApplication sharedApplication];
    fillInterface(homeWindow());
    if (UIWindow *front = frontApplicationWindow()) fillInterface(front);
    fillInterface([application statusBarWindow]);
    UIView *bar = [application statusBar];
    [bar setFrame:CGRectMake(0, 0, interfaceSize().width, [bar bounds].size.height)];
}

} // namespace

void turnDevice(UIInterfaceOrientation orientation) {
    setDeviceOrientation(orientation);
    if (orientation == [[UIApplication sharedApplication] statusBarOrientation]) return;
    setReachability(false);
    setInterfaceOrientation(orientation);
    closeFolder(false);
    [UIView animateWithDuration:kTurn
                     animations:^{
                         placeWindows();
                         layOutHomeAnew();
                     }];
}

bool setReachability(bool on) {
    if (!device().reachability) return false;
    if (std::exchange(reachability, on) == on) return true;
    setInterfaceDrop(on ? kDropPart * interfaceSize().height : 0);
    [UIView animateWithDuration:kDrop animations:^{ placeWindows(); }];
    return true;
}

bool reachabilityIsOn() { return reachability; }

} // namespace sim

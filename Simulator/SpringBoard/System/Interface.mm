#include "Interface.h"

#include "Runtime/Objc/Versions.hpp"
#include "Runtime/Process/Device.hpp"
#include "Runtime/Time/Clock.hpp"
#include "SpringBoard/Applications/ApplicationLife.h"
#include "SpringBoard/Applications/ApplicationWindow.h"
#include "SpringBoard/Home/FolderOverlay.h"
#include "SpringBoard/Home/HomeViews.h"
#include "SpringBoard/Lock/LockState.h"
#include "UIKit/Application/ApplicationState.h"
#include "UIKit/StatusBar/StatusBarState.h"
#include "UIKit/Touch/TouchInput.h"

#include <algorithm>
#include <utility>

namespace sim {

namespace {

constexpr NSTimeInterval kTurn = 0.4, kDrop = 0.3; // inferred
constexpr CGFloat kDropPart = 0.4;                 // of the screen's height; inferred

constexpr double kIdle = 8; // seconds

bool reachability = false;
Clock::TaskId idleCheck = 0;
std::optional<bool> turns;
bool deviceIsKnown = false;                                              // how it is held
UIInterfaceOrientation homeOrientation = UIInterfaceOrientationPortrait; // how the home screen is laid out

UIInterfaceOrientation current() { return [[UIApplication sharedApplication] statusBarOrientation]; }

bool homeTurns() {
    constexpr double kLargestPhone = 414; // points across
    if (turns) return *turns;
    return device().pad || (device().width >= kLargestPhone && device().version >= kFirst8);
}

// What is in front and does not turn lies upright; what does not allow an orientation stays as it is.
UIInterfaceOrientation wantedOrientation() {
    if (!deviceIsKnown) return UIInterfaceOrientationPortrait;
    auto held = static_cast<UIInterfaceOrientation>(deviceOrientation());
    bool application = frontApplication() && !lockState().screenLocked;
    if (!homeTurns() && (turns || !application)) return UIInterfaceOrientationPortrait;
    bool allowed = turns || device().pad || held != UIInterfaceOrientationPortraitUpsideDown;
    return allowed ? held : current();
}

// Home screen, status bar and what is in front. Windows of others stay where they are, and so does a home
// screen under an application that alone has turned.
void placeWindows() {
    UIApplication *application = [UIApplication sharedApplication];
    if (homeOrientation == current()) fillInterface(homeWindow());
    if (UIWindow *front = frontApplicationWindow()) fillInterface(front);
    fillInterface([application statusBarWindow]);
    UIView *bar = [application statusBar];
    [bar setFrame:CGRectMake(0, 0, interfaceSize().width, [bar bounds].size.height)];
}

void turnInterface(bool animated) {
    UIInterfaceOrientation next = wantedOrientation();
    if (next == current()) return;
    setReachability(false);
    setInterfaceOrientation(next);
    bool homeToo = homeTurns() && homeOrientation != next;
    if (homeToo) homeOrientation = next;
    closeFolder(false);
    [UIView animateWithDuration:animated ? kTurn : 0
                     animations:^{
                         placeWindows();
                         if (homeToo) layOutHomeAnew();
                     }];
}

void endReachabilityWhenIdle(Nanos since) {
    Clock &clock = Clock::shared();
    Nanos due = std::max(since, lastTouchTime()) + fromSeconds(kIdle);
    if (due <= clock.now()) {
        setReachability(false);
    } else {
        idleCheck = clock.schedule(due, Clock::Phase::timer, [=] { endReachabilityWhenIdle(since); });
    }
}

} // namespace

void letInterfaceTurn(std::optional<bool> wanted) { turns = wanted; }

void followDevice() {
    [[UIDevice currentDevice] beginGeneratingDeviceOrientationNotifications];
    Clock::shared().schedule(Clock::shared().now(), Clock::Phase::timer, [] {
        deviceIsKnown = true;
        turnInterface(false);
    });
}

void turnDevice(UIInterfaceOrientation orientation) {
    setDeviceOrientation(static_cast<UIDeviceOrientation>(orientation));
    turnInterface(true);
}

void turnInterfaceAsWanted() { turnInterface(true); }

bool setReachability(bool on) {
    if (!device().reachability) return false;
    if (std::exchange(reachability, on) == on) return true;
    Clock::shared().cancel(std::exchange(idleCheck, 0));
    if (on) endReachabilityWhenIdle(Clock::shared().now());
    setInterfaceDrop(on ? kDropPart * interfaceSize().height : 0);
    [UIView animateWithDuration:kDrop animations:^{ placeWindows(); }];
    return true;
}

bool reachabilityIsOn() { return reachability; }

} // namespace sim

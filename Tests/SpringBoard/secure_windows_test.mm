// Proves that from 8.0 on only windows with a secure context show and take touches while the lock screen is
// up, that the question is asked once and when the window is first shown, and that a dark display shows
// nothing.
#include "Fingers.h"

#include "UIKit/Application/ApplicationState.h"
#include "UIKit/Touch/TouchInput.h"

#include <Substrate/CydiaSubstrate.h>

#include <algorithm>

namespace {

UIWindow *makeWindow(CGFloat level) {
    UIWindow *window = [[[UIWindow alloc] initWithFrame:[[UIScreen mainScreen] bounds]] autorelease];
    [window setWindowLevel:level];
    return window;
}

bool shows(UIWindow *window) {
    auto windows = sim::displayedWindows();
    return std::find(windows.begin(), windows.end(), window) != windows.end();
}

int questions = 0;
BOOL sayYes(id, SEL) {
    ++questions;
    return YES;
}

void beAskedInstead() {
    MSHookMessageEx([UIWindow class], sel_registerName("_shouldCreateContextAsSecure"),
                    reinterpret_cast<IMP>(sayYes), nullptr);
}

struct Case {
    const char *name;
    sim::Version version;
    bool hooked;
    bool showsOverLock;
};

class SecureWindows : public testing::TestWithParam<Case> {};

} // namespace

TEST_P(SecureWindows, ShowOverTheLockScreen) {
    harness::boot(harness::profile("iPhone 5", GetParam().version));
    if (GetParam().hooked) beAskedInstead();
    UIWindow *window = makeWindow(1500);
    EXPECT_EQ(questions, 0) << "without a context yet";
    [window setHidden:NO];
    [window setHidden:YES];
    [window setHidden:NO];
    bool asks = GetParam().version.major >= 8;
    EXPECT_EQ(questions, GetParam().hooked && asks) << "once";
    EXPECT_TRUE(shows(window));
    sim::setDisplay(false);
    EXPECT_TRUE(sim::displayedWindows().empty());
    sim::setDisplay(true);
    EXPECT_EQ(shows(window), GetParam().showsOverLock);
    UIView *touched = sim::touchTarget(CGPointMake(100, 300));
    EXPECT_EQ(touched == window, GetParam().showsOverLock);
    EXPECT_TRUE(shows([[UIApplication sharedApplication] statusBarWindow]));
    EXPECT_TRUE(harness::findView("SBLockScreenView"));
    sim::unlockDevice();
    EXPECT_TRUE(shows(window));
}

INSTANTIATE_TEST_SUITE_P(
    All, SecureWindows,
    testing::Values(Case{"seven", {7, 1}, false, true}, Case{"eight", {8, 0}, false, false},
                    Case{"eight_hooked", {8, 0}, true, true}, Case{"later", {8, 1}, false, false},
                    Case{"later_hooked", {8, 1}, true, true}, Case{"seven_hooked", {7, 0}, true, true}),
    [](const auto &info) { return info.param.name; });

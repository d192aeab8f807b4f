// Proves that the home screen itself gets along without classes that a device may lack: nothing in it may
// lean on one.
#include "Harness.h"

#include "Runtime/Objc/Availability.hpp"

#include <UIKit/UIKit.h>

namespace {

class HiddenClasses : public testing::TestWithParam<const char *> {};

} // namespace

TEST_P(HiddenClasses, LeaveAHomeScreenThatWorks) {
    sim::hideClass(GetParam());
    harness::boot();
    EXPECT_FALSE(objc_getClass(GetParam()));
    EXPECT_TRUE(sim::setBadge("org.example.chat", 3));
    EXPECT_TRUE(harness::badgeOf(harness::folderView()));
    EXPECT_TRUE(sim::openApplication("com.apple.mobilemail"));
    harness::wait(1);
    sim::sendActivatorEvent("org.example.Listener");
    sim::restyleStatusBar();
    sim::clickHomeButton();
    harness::wait(1);
    EXPECT_FALSE(sim::foregroundApplication());
    EXPECT_EQ(harness::events({"unrecognized", "warning"}), std::vector<std::string>{});
}

INSTANTIATE_TEST_SUITE_P(Each, HiddenClasses,
                         testing::Values("_UIBackdropView", "_UIBackdropViewSettings",
                                         "_UIBackdropViewSettingsDark",
                                         "_UIBackdropViewSettingsAdaptiveLight", "LSStatusBarItem",
                                         "LAActivator", "SBReachabilityManager", "PKGlyphView",
                                         "SBUIBiometricEventMonitor"),
                         [](const auto &info) { return info.param; });

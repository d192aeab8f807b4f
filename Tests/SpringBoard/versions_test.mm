// Proves that each system version has the classes and methods that it had, and none that came or went: a
// wrong version branch must fail here as it would on a phone.
#include "Harness.h"

#include <ColorBadges/ColorBadges.h>

#include <objc/runtime.h>

namespace {

constexpr unsigned k70 = 1, k71 = 2, k80 = 4, k81 = 8, k83 = 16;
constexpr unsigned kSeven = k70 | k71, kEight = k80 | k81 | k83, kAll = kSeven | kEight;

struct VersionCase {
    const char *name;
    sim::Version version;
    unsigned bit;
};

struct Row {
    const char *className;
    const char *selector; // "+" for a class method; null: the class itself
    unsigned versions;
};

const Row kRows[] = {
    {"SBIconBadgeView", "_resizeForTextImage:", kAll},
    {"SBIconView", "_updateAccessoryViewWithAnimation:", kAll},
    {"UIStatusBarItemView", "initWithItem:data:actions:style:", kAll},
    {"UIStatusBar", "_touchShouldProduceReturnEvent", kAll},
    {"SBUIController", "clickedMenuButton", kAll},
    {"SBUIController", "handleMenuDoubleTap", kAll},
    {"SpringBoard", "handleMenuDoubleTap", kAll},
    {"SpringBoard", "applicationDidFinishLaunching:", kAll},
    {"SpringBoard", "_accessibilityTopDisplay", kAll},
    {"SpringBoard", "_accessibilityFrontMostApplication", kAll},
    {"SpringBoard", "launchApplicationWithIdentifier:suspended:", kAll},
    {"SpringBoard", "statusBarWindow", kAll},
    {"SpringBoard", "statusBar", kAll},
    {"SBBannerController", "_presentBannerForContext:reason:", kAll},
    {"UIWindow", "_shouldCreateContextAsSecure", kEight},
    {"UIWindow", "+_isSecure", kEight},
    {"UIWindow", "_isSecure", kEight},
    {"UIWindow", "_setSecure:", kEight},
    {"SBLockScreenViewController", "_handleDisplayTurnedOff", kAll},
    {"SBLockScreenViewController", "_handleDisplayTurnedOn", kSeven | k80},
    {"SBLockScreenViewController", "_handleDisplayTurnedOn:", k81 | k83},
    {"SBLockScreenViewController", "prepareForUIUnlock", kAll},
    {"SBLockScreenViewController", "finishUIUnlockFromSource:", kAll},
    {"SBLockScreenViewController", "prepareForUILock", 0},
    {"SBLockScreenManager", "+sharedInstance", kAll},
    {"SBLockScreenManager", "+sharedInstanceIfExists", kAll},
    {"SBLockScreenManager", "isUILocked", kAll},
    {"SBLockScreenManager", "lockScreenViewController", kAll},
    {"SBLockScreenManager", "unlockUIFromSource:withOptions:", kAll},
    {"SBLockScreenManager", "attemptUnlockWithPasscode:", kAll},
    {"SBLockScreenViewController", "setPasscodeLockVisible:animated:withUnlockSource:andOptions:", kAll},
    {"SBLockScreenViewControllerBase", "prepareForUIUnlock", kAll},
    {"PKGlyphView", "initWithStyle:", kEight},
    {"PKGlyphView", "setState:animated:completionHandler:", kEight},
    {"PKFingerprintGlyphView", "_setProgress:withDuration:forShapeLayerAtIndex:", kEight},
    {"PKGlyphView", nullptr, kEight},
    {"PKFingerprintGlyphView", nullptr, kEight},
    {"SBApplication", "willActivate", kAll},
    {"SBApplication", "willAnimateDeactivation:", kAll},
    {"SBApplication", "didActivate", kSeven},
    {"SBApplication", "displayIdentifier", kSeven},
    {"SBApplication", "bundleIdentifier", kAll},
    {"SBApplication", "badgeNumberOrString", kAll},
    {"SBApplication", "setBadge:", kAll},
    {"SBApplication", "pid", kAll},
    {"SBApplication", "isRunning", kAll},
    {"SBApplication", "deactivate", kAll},
    {"SBAppSwitcherModel", "+sharedInstance", kAll},
    {"SBAppSwitcherModel", "snapshotOfFlattenedArrayOfAppIdentifiersWhichIsOnlyTemporary", kEight},
    {"SBAppSwitcherModel", "identifiers", kSeven},
    {"SBAppSwitcherModel", "remove:", kAll},
    {"SBAppSwitcherModel", "addToFront:", kAll},
    {"SBAppSwitcherModel", "removeDisplayItem:", kEight},
    {"SBDisplayLayout", nullptr, kEight},
    {"SBDisplayItem", nullptr, kEight},
    {"SBDisplayItem", "+displayItemWithType:displayIdentifier:", kEight},
    {"SBAppSliderController", "_quitAppAtIndex:", kSeven},
    {"SBAppSliderController", nullptr, kSeven},
    {"SBAppSwitcherController", "_quitAppWithDisplayItem:", kEight},
    {"SBAppSwitcherController", nullptr, kEight},
    {"SBReachabilityManager", nullptr, kEight},
    {"SBReachabilityManager", "+reachabilitySupported", kEight},
    {"SBUserAgent", "+sharedUserAgent", kAll},
    {"SBUserAgent", "deviceIsLocked", kAll},
    {"SBUserAgent", "deviceIsPasscodeLocked", kAll},
    {"SBUserAgent", "foregroundApplicationDisplayID", kAll},
    {"SBUserAgent", "setBadgeNumberOrString:forApplicationWithID:", kAll},
    {"SBIconModel", "expectedIconForDisplayIdentifier:", kAll},
    {"SBIconModel", "leafIconForIdentifier:", kAll},
    {"SBIconModel", "applicationIconForDisplayIdentifier:", kSeven},
    {"SBIconModel", "applicationIconForBundleIdentifier:", kEight},
    {"SBApplicationController", "applicationWithDisplayIdentifier:", kSeven},
    {"SBApplicationController", "applicationsWithBundleIdentifier:", kSeven},
    {"SBApplicationController", "applicationWithBundleIdentifier:", kEight},
    {"SBIconViewMap", "+homescreenMap", kAll},
    {"SBIconViewMap", "mappedIconViewForIcon:", kAll},
    {"SBIconViewMap", "iconViewForIcon:", kAll},
    {"SBUIBiometricEventMonitor", "+sharedInstance", kAll},
    {"SBUIBiometricEventMonitor", "addObserver:", kAll},
    {"SBUIBiometricEventMonitor", "removeObserver:", kAll},
    {"SBUIBiometricEventMonitor", "_startMatching", kAll},
    {"SBUIBiometricEventMonitor", "_stopMatching", kAll},
    {"SBUIBiometricEventMonitor", "_setMatchingEnabled:", kAll},
    {"SBUIBiometricEventMonitor", "isMatchingEnabled", kAll},
    {"SBUIBiometricEventMonitor", "hasEnrolledIdentities", kAll},
    {"BiometricKit", "+manager", kAll},
    {"BiometricKit", "match:", kAll},
    {"BiometricKit", "match:withOptions:", kAll},
    {"BiometricKit", "cancel", kAll},
    {"SBIcon", "accessoryTypeForLocation:", kAll},
    {"LSStatusBarItem", "initWithIdentifier:alignment:", kAll},
    {"LAActivator", "+sharedInstance", kAll},
    {"_UIBackdropView", "initWithSettings:", kAll},
    {"FBWindow", nullptr, kEight},
    {"SBWindow", nullptr, kAll},
};

bool present(const Row &row) {
    Class target = objc_getClass(row.className);
    if (!target || !row.selector) return target != Nil;
    bool onClass = row.selector[0] == '+';
    SEL selector = sel_registerName(row.selector + onClass);
    return onClass ? class_getClassMethod(target, selector) != nullptr
                   : class_getInstanceMethod(target, selector) != nullptr;
}

class Versions : public testing::TestWithParam<VersionCase> {};

} // namespace

TEST_P(Versions, HaveTheirOwnClassesAndMethods) {
    harness::boot(harness::profile("iPhone 4S", GetParam().version));
    for (const auto &row : kRows)
        EXPECT_EQ(present(row), (row.versions & GetParam().bit) != 0)
            << row.className << " " << (row.selector ? row.selector : "(class)");
}

INSTANTIATE_TEST_SUITE_P(All, Versions,
                         testing::Values(VersionCase{"7_0", {7, 0}, k70}, VersionCase{"7_1", {7, 1}, k71},
                                         VersionCase{"8_0", {8, 0}, k80}, VersionCase{"8_1", {8, 1}, k81},
                                         VersionCase{"8_3", {8, 3}, k83}),
                         [](const auto &info) { return info.param.name; });

TEST(Classes, OfTheOtherExtensionAreThereWhenItIsInstalled) {
    auto options = harness::applications();
    options.colorBadges = true;
    options.colorBadgesBorders = true;
    harness::boot(harness::profile("iPhone 6"), options);
    Class badges = objc_getClass("ColorBadges");
    ASSERT_TRUE(badges);
    EXPECT_TRUE([badges isEnabled]);
    EXPECT_TRUE([badges areBordersEnabled]);
}

TEST(Classes, OfTheOtherExtensionAreAbsentOtherwise) {
    harness::boot();
    EXPECT_FALSE(objc_getClass("ColorBadges"));
}

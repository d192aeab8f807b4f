// Proves that each system version has the classes and methods that it had, and none that came or went: a
// wrong version branch must fail here as it would on a phone.
#include "Harness.h"

#include "SpringBoard/Services/SBUserAgent+Further.h"
#include "SpringBoard/Switcher/SBAppSwitcherModel+Further.h"
#include "UIKit/Materials/_UIBackdropView+Further.h"

#include <ColorBadges/ColorBadges.h>

#include <objc/runtime.h>

namespace {

constexpr unsigned k70 = 1, k71 = 2, k80 = 4, k81 = 8, k83 = 16;
constexpr unsigned kSeven = k70 | k71, kEight = k80 | k81 | k83;

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

// Only what some version lacks; a hook or a call that every version answers is seen by who uses it.
const Row kRows[] = {
    {"UIWindow", "_shouldCreateContextAsSecure", kEight},
    {"UIWindow", "+_isSecure", kEight},
    {"UIWindow", "_isSecure", kEight},
    {"UIWindow", "_setSecure:", kEight},
    {"SBLockScreenViewController", "_handleDisplayTurnedOn", kSeven | k80},
    {"SBLockScreenViewController", "_handleDisplayTurnedOn:", k81 | k83},
    {"SBLockScreenViewController", "prepareForUILock", 0},
    {"PKGlyphView", "initWithStyle:", kEight},
    {"PKGlyphView", "setState:animated:completionHandler:", kEight},
    {"PKFingerprintGlyphView", "_setProgress:withDuration:forShapeLayerAtIndex:", kEight},
    {"PKGlyphView", nullptr, kEight},
    {"PKFingerprintGlyphView", nullptr, kEight},
    {"SBApplication", "didActivate", kSeven},
    {"SBApplication", "displayIdentifier", kSeven},
    {"SBAppSwitcherModel", "snapshotOfFlattenedArrayOfAppIdentifiersWhichIsOnlyTemporary", kEight},
    {"SBAppSwitcherModel", "identifiers", kSeven},
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
    {"SBIconModel", "applicationIconForDisplayIdentifier:", kSeven},
    {"SBIconModel", "applicationIconForBundleIdentifier:", kEight},
    {"SBApplicationController", "applicationWithDisplayIdentifier:", kSeven},
    {"SBApplicationController", "applicationsWithBundleIdentifier:", kSeven},
    {"SBApplicationController", "applicationWithBundleIdentifier:", kEight},
    {"FBWindow", nullptr, kEight},
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
    options.colorBadges.emplace();
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

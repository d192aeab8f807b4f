// Proves that the device locks and unlocks as a phone does: what the lock screen is told on each system
// version, what a finger on it does, and who hears that the device is locked.
#include "Fingers.h"

#include "SpringBoard/Lock/LockState.h"
#include "SpringBoard/Lock/LockTexts.hpp"
#include "SpringBoard/Lock/PasscodeKey.h"
#include "SpringBoard/Lock/SBLockScreenManager+Further.h"
#include "SpringBoard/Services/LAActivator+Further.h"
#include "SpringBoard/Services/SBUserAgent+Further.h"
#include "UIKit/Application/ApplicationState.h"

#include <Activator/libactivator.h>
#include <SpringBoard/SBLockScreen.h>
#include <Substrate/CydiaSubstrate.h>

namespace {

using Lines = std::vector<std::string>;

Lines heard;
std::map<std::string, IMP> originals;

template <typename... Arguments>
void listenIn(id self, SEL selector, Arguments... arguments) {
    heard.emplace_back(sel_getName(selector));
    reinterpret_cast<void (*)(id, SEL, Arguments...)>(originals[heard.back()])(self, selector, arguments...);
}

template <typename... Arguments>
void listenTo(const char *selector) {
    auto *replacement = reinterpret_cast<IMP>(listenIn<Arguments...>);
    MSHookMessageEx(objc_getClass("SBLockScreenViewController"), sel_registerName(selector), replacement,
                    &originals[selector]);
}

void listen() {
    heard.clear();
    listenTo<>("_handleDisplayTurnedOff");
    listenTo<>("_handleDisplayTurnedOn");
    listenTo<id>("_handleDisplayTurnedOn:");
    listenTo<>("prepareForUIUnlock");
    listenTo<int>("finishUIUnlockFromSource:");
}

void bootWith(bool passcode, sim::Version version = {8, 1}) {
    auto options = harness::applications();
    options.passcode = passcode;
    harness::boot(harness::profile("iPhone 5", version), options);
}

// Screen up, locked for the user agent, locked by the passcode, mode of events.
std::string lockedness() {
    SBUserAgent *agent = [SBUserAgent sharedUserAgent];
    auto digit = [](BOOL yes) { return std::string(yes ? "1" : "0"); };
    return digit([[SBLockScreenManager sharedInstance] isUILocked]) + digit([agent deviceIsLocked]) +
           digit([agent deviceIsPasscodeLocked]) + " " +
           harness::text([[LAActivator sharedInstance] currentEventMode]);
}

void enter(const char *digits) {
    for (; *digits; ++digits)
        for (UIView *key in [harness::findView("SBUIPasscodeLockView") subviews])
            if ([key isKindOfClass:[SBPasscodeNumberPadButton class]] &&
                static_cast<SBPasscodeNumberPadButton *>(key)->_digit == *digits - '0')
                harness::tap(harness::middle(key));
}

void slide() { harness::swipe(CGPointMake(30, 300), 260, 0); }

struct VersionCase {
    const char *name;
    sim::Version version;
    const char *displayOn;
};

class DisplayOn : public testing::TestWithParam<VersionCase> {};

} // namespace

TEST_P(DisplayOn, TellsTheLockScreenInTheFormOfTheVersion) {
    bootWith(false, GetParam().version);
    listen();
    sim::setDisplay(false);
    sim::setDisplay(false);
    sim::setDisplay(true);
    sim::setDisplay(true);
    EXPECT_EQ(heard, (Lines{"_handleDisplayTurnedOff", GetParam().displayOn}));
    heard.clear();
    sim::unlockDevice();
    sim::unlockDevice();
    EXPECT_EQ(heard, (Lines{"prepareForUIUnlock", "finishUIUnlockFromSource:"}));
}

INSTANTIATE_TEST_SUITE_P(All, DisplayOn,
                         testing::Values(VersionCase{"7_0", {7, 0}, "_handleDisplayTurnedOn"},
                                         VersionCase{"7_1", {7, 1}, "_handleDisplayTurnedOn"},
                                         VersionCase{"8_0", {8, 0}, "_handleDisplayTurnedOn"},
                                         VersionCase{"8_1", {8, 1}, "_handleDisplayTurnedOn:"},
                                         VersionCase{"8_3", {8, 3}, "_handleDisplayTurnedOn:"}),
                         [](const auto &info) { return info.param.name; });

class Passcode : public testing::TestWithParam<bool> {};

TEST_P(Passcode, DecidesHowTheDeviceIsLocked) {
    bootWith(GetParam());
    std::string locked = GetParam() ? "111 lockscreen" : "110 lockscreen";
    EXPECT_EQ(lockedness(), "000 springboard");
    sim::setDisplay(false);
    EXPECT_EQ(lockedness(), locked) << "as soon as it is dark";
    sim::unlockDevice();
    EXPECT_EQ(lockedness(), locked) << "nobody unlocks a dark device";
    sim::setDisplay(true);
    EXPECT_EQ(lockedness(), locked);
    sim::unlockDevice();
    EXPECT_EQ(lockedness(), "000 springboard");
    sim::pressLockButton();
    EXPECT_FALSE(sim::displayIsOn());
    sim::clickHomeButton();
    EXPECT_TRUE(sim::displayIsOn()) << "the home button wakes it";
    EXPECT_EQ(lockedness(), locked) << "and does no more";
    sim::pressLockButton();
    sim::pressLockButton();
    EXPECT_TRUE(sim::displayIsOn()) << "so does the button that put it to sleep";
}

INSTANTIATE_TEST_SUITE_P(Lock, Passcode, testing::Bool());

TEST(Lock, KeepsTheApplicationInFrontForLater) {
    bootWith(true);
    sim::openApplication("org.example.1");
    harness::wait(1);
    sim::setDisplay(false);
    sim::setDisplay(true);
    EXPECT_FALSE(sim::foregroundApplication());
    sim::unlockDevice();
    EXPECT_EQ(sim::foregroundApplication(), "org.example.1");
    sim::setDisplay(false);
    sim::setDisplay(true);
    sim::openApplication("org.example.2");
    EXPECT_FALSE(sim::foregroundApplication()) << "it opens behind the lock screen";
    harness::wait(1);
    EXPECT_TRUE(harness::findView("SBLockScreenView"));
    sim::unlockDevice();
    harness::wait(1);
    EXPECT_EQ(sim::foregroundApplication(), "org.example.2");
    EXPECT_FALSE(harness::findView("SBLockScreenView"));
    EXPECT_EQ(sim::role([[UIApplication sharedApplication] keyWindow]), sim::WindowRole::application);
}

TEST(Lock, ShowsTheClockInTheDeviceLanguage) {
    sim::Device device = harness::profile("iPhone 6");
    device.language = "es";
    auto options = harness::applications();
    options.passcodeLocked = true;
    harness::boot(device, options);
    EXPECT_EQ(lockedness(), "111 lockscreen") << "it starts locked, and";
    EXPECT_TRUE(sim::displayIsOn());
    UIView *date = harness::findView("SBFLockScreenDateView");
    ASSERT_TRUE(date);
    EXPECT_TRUE(harness::findView("UILabel", @"desliza para desbloquear"));
}

TEST(Lock, TellsTimeAndDateAsTheLanguageDoes) {
    constexpr int64_t kLeapDay = 1456704300, kNoon = 1425211200; // 2016-02-29 00:05, 2015-03-01 12:00
    struct {
        const char *language;
        int64_t moment;
        const char *time, *date;
    } const cases[] = {
        {"en", kLeapDay, "12:05", "Monday, February 29"}, {"en", kNoon, "12:00", "Sunday, March 1"},
        {"it", kLeapDay, "00:05", "lunedì 29 febbraio"},  {"es", kLeapDay, "00:05", "lunes, 29 de febrero"},
        {"fr", kNoon + 3600, "1:00", "Sunday, March 1"},
    };
    for (const auto &test : cases) {
        sim::device().language = test.language;
        EXPECT_EQ(sim::lockTime(test.moment), test.time) << test.language;
        EXPECT_EQ(sim::lockDate(test.moment), test.date) << test.language;
    }
}

TEST(Lock, OpensToAFingerThatSlides) {
    bootWith(false);
    sim::setDisplay(false);
    slide();
    EXPECT_EQ(lockedness(), "110 lockscreen") << "a dark screen feels nothing";
    sim::setDisplay(true);
    slide();
    EXPECT_EQ(lockedness(), "000 springboard");
    EXPECT_EQ(harness::events({"passcode_prompt"}), Lines{}) << "there is nothing to ask for";
}

TEST(Lock, AsksForThePasscode) {
    bootWith(true);
    sim::setDisplay(false);
    sim::setDisplay(true);
    slide();
    EXPECT_EQ(harness::events({"passcode_prompt"}), Lines{"passcode_prompt"});
    EXPECT_EQ(lockedness(), "111 lockscreen");
    enter("4321");
    harness::wait(1);
    EXPECT_EQ(lockedness(), "111 lockscreen") << "a wrong passcode";
    enter("12");
    sim::clickHomeButton();
    harness::wait(1);
    EXPECT_EQ(lockedness(), "111 lockscreen") << "the home button goes back to the clock";
    slide();
    enter(sim::kDevicePasscode);
    EXPECT_EQ(lockedness(), "000 springboard") << "the digits from before are forgotten";
}

TEST(Lock, AsksWhenItIsTold) {
    bootWith(true);
    SBLockScreenManager *manager = [SBLockScreenManager sharedInstance];
    auto ask = [&](BOOL visible) {
        [[manager lockScreenViewController] setPasscodeLockVisible:visible
                                                          animated:YES
                                                  withUnlockSource:0
                                                        andOptions:nil];
        harness::wait(1);
    };
    ask(YES);
    EXPECT_EQ(harness::events({"passcode_prompt"}), Lines{}) << "no lock screen, no question";
    sim::setDisplay(false);
    sim::setDisplay(true);
    [manager unlockUIFromSource:0 withOptions:nil];
    ask(YES);
    EXPECT_EQ(harness::events({"passcode_prompt"}), (Lines{"passcode_prompt", "passcode_prompt"}));
    enter("1");
    EXPECT_TRUE([manager isUILocked]);
    EXPECT_FALSE([manager attemptUnlockWithPasscode:@"1111"]);
    EXPECT_FALSE([manager attemptUnlockWithPasscode:nil]);
    EXPECT_TRUE([manager attemptUnlockWithPasscode:@"1234"]);
    EXPECT_FALSE([manager isUILocked]);
    EXPECT_FALSE([manager attemptUnlockWithPasscode:@"1234"]) << "only while it is locked";
}

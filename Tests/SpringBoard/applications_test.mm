// Proves how applications come to the front, leave it and end, and that the switcher's list follows in the
// shape of each system version.
#include "Harness.h"

#include "SpringBoard/Switcher/SBAppSwitcherModel+Further.h"
#include "SpringBoard/Switcher/SwitcherModel.h"
#include "UIKit/Application/ApplicationState.h"

#include <objc/runtime.h>

namespace {

using Lines = std::vector<std::string>;

const char *const kMail = "com.apple.mobilemail", *const kPhone = "com.apple.mobilephone",
                  *const kOne = "org.example.1";

Lines calls;
IMP originalActivate, originalDeactivate;

void watchActivate(SBApplication *self, SEL selector) {
    reinterpret_cast<void (*)(id, SEL)>(originalActivate)(self, selector);
    calls.push_back("willActivate " + harness::text([self bundleIdentifier]));
}

void watchDeactivate(SBApplication *self, SEL selector, BOOL animated) {
    reinterpret_cast<void (*)(id, SEL, BOOL)>(originalDeactivate)(self, selector, animated);
    calls.push_back("willAnimateDeactivation " + harness::text([self bundleIdentifier]));
}

void watch() {
    Class target = [SBApplication class];
    originalActivate =
        sim::replaceMethod(target, @selector(willActivate), reinterpret_cast<IMP>(watchActivate));
    originalDeactivate = sim::replaceMethod(target, @selector(willAnimateDeactivation:),
                                            reinterpret_cast<IMP>(watchDeactivate));
}

size_t applicationWindows() {
    size_t count = 0;
    for (UIWindow *window : sim::visibleWindows()) count += sim::role(window) == sim::WindowRole::application;
    return count;
}

sim::SharedOptions running() {
    auto options = harness::applications();
    for (auto &spec : options.applications)
        spec.running = spec.identifier == kMail || spec.identifier == kPhone || spec.identifier == kOne;
    return options;
}

UIApplication *springBoard() { return [UIApplication sharedApplication]; }

class Switcher : public testing::TestWithParam<sim::Version> {};

} // namespace

TEST(Applications, ComeToTheFrontAndLeaveIt) {
    harness::boot();
    watch();
    EXPECT_FALSE(sim::foregroundApplication());
    EXPECT_FALSE([[springBoard() performSelector:@selector(_accessibilityTopDisplay)]
        respondsToSelector:@selector(bundleIdentifier)]);

    EXPECT_TRUE([springBoard() launchApplicationWithIdentifier:@"com.apple.mobilemail" suspended:NO]);
    EXPECT_EQ(sim::foregroundApplication(), kMail);
    EXPECT_EQ([springBoard() performSelector:@selector(_accessibilityTopDisplay)],
              harness::application(kMail));
    EXPECT_TRUE([harness::application(kMail) isRunning]);
    EXPECT_EQ(applicationWindows(), 1u);

    EXPECT_TRUE(sim::openApplication(kPhone)) << "straight from one to the other";
    harness::wait(1);
    EXPECT_EQ(applicationWindows(), 1u);
    sim::clickHomeButton();
    harness::wait(1);
    EXPECT_FALSE(sim::foregroundApplication());
    EXPECT_EQ(applicationWindows(), 0u);
    EXPECT_TRUE([harness::application(kPhone) isRunning]) << "stays in the background";

    EXPECT_EQ(calls, (Lines{"willActivate com.apple.mobilemail", "willActivate com.apple.mobilephone",
                            "willAnimateDeactivation com.apple.mobilemail",
                            "willAnimateDeactivation com.apple.mobilephone"}));
    EXPECT_EQ(harness::events({"launch", "quit"}),
              (Lines{"launch id=com.apple.mobilemail", "launch id=com.apple.mobilephone"}));
}

TEST(Applications, StayWhereTheyAreWhenNothingIsToBeDone) {
    harness::boot();
    EXPECT_FALSE([springBoard() launchApplicationWithIdentifier:@"org.example.none" suspended:NO]);
    EXPECT_FALSE(sim::openApplication("org.example.none"));
    sim::clickHomeButton();
    EXPECT_EQ(harness::events({"launch", "quit"}), Lines{});
    EXPECT_TRUE([springBoard() launchApplicationWithIdentifier:@"org.example.1" suspended:YES]);
    EXPECT_FALSE(sim::foregroundApplication()) << "started, but suspended";
    EXPECT_TRUE([harness::application(kOne) isRunning]);
    sim::openApplication(kOne);
    harness::events({});
    sim::openApplication(kOne);
    EXPECT_EQ(harness::events({"launch"}), Lines{}) << "is in front already";
}

TEST(Applications, EndBySignalAndBySwitcher) {
    harness::boot(harness::profile("iPhone 6"), running());
    SBApplication *mail = harness::application(kMail), *phone = harness::application(kPhone);
    int pid = [mail pid];
    EXPECT_GT(pid, 0);
    EXPECT_NE(pid, [phone pid]);
    struct Case {
        int pid, number;
        Lines events;
    };
    const Case cases[] = {{pid, 1, {}},  {0, 15, {}},
                          {-1, 15, {}},  {pid, 15, {"quit how=signal id=com.apple.mobilemail"}},
                          {pid, 15, {}}, {[phone pid], 9, {"quit how=signal id=com.apple.mobilephone" }}};
    for (const auto &step : cases) {
        sim::deliverSignal(step.pid, step.number);
        EXPECT_EQ(harness::events({"quit"}), step.events);
    }
    EXPECT_LE([mail pid], 0);
    EXPECT_FALSE([mail _process]);
    EXPECT_EQ(sim::switcherApplications(), (Lines{kMail, kPhone, kOne}))
        << "the switcher keeps what was killed";

    SBApplication *one = harness::application(kOne);
    sim::openApplication(kOne);
    [one deactivate];
    EXPECT_FALSE(sim::foregroundApplication());
    [[one _process] _queue_processDidExit];
    [[one _process] _queue_processDidExit];
    EXPECT_FALSE([one isRunning]);
    EXPECT_EQ(harness::events({"quit"}), Lines{"quit how=switcher id=org.example.1"});
    harness::wait(1);
}

TEST(Applications, InFrontMakeWayForTheHomeScreenWhenTheyEnd) {
    harness::boot();
    sim::openApplication(kMail);
    sim::deliverSignal([harness::application(kMail) pid], 9);
    harness::wait(1);
    EXPECT_FALSE(sim::foregroundApplication());
    EXPECT_EQ(applicationWindows(), 0u);
}

TEST_P(Switcher, ListsTheMostRecentFirst) {
    harness::boot(harness::profile("iPhone 4S", GetParam()), running());
    bool layouts = GetParam() >= sim::Version{8, 0};
    SBAppSwitcherModel *model = [SBAppSwitcherModel sharedInstance];
    auto identifiers = [&] {
        Lines result;
        NSArray *list = layouts ? [model snapshotOfFlattenedArrayOfAppIdentifiersWhichIsOnlyTemporary]
                                : [model identifiers];
        for (NSString *identifier in list) result.push_back([identifier UTF8String]);
        return result;
    };
    EXPECT_EQ(identifiers(), (Lines{kMail, kPhone, kOne}));
    sim::openApplication(kOne);
    EXPECT_EQ(identifiers(), (Lines{kOne, kMail, kPhone}));
    EXPECT_EQ(sim::switcherApplications(), identifiers());
}

TEST_P(Switcher, ShowsItsListAsAnInstanceVariable) {
    harness::boot(harness::profile("iPhone 4S", GetParam()), running());
    bool layouts = GetParam() >= sim::Version{8, 0};
    SBAppSwitcherModel *model = [SBAppSwitcherModel sharedInstance];
    NSString *name = layouts ? @"_recentDisplayLayouts" : @"_recentDisplayIdentifiers";
    void *read = nullptr;
    ASSERT_TRUE(object_getInstanceVariable(model, [name UTF8String], &read));
    NSArray *list = static_cast<NSArray *>(read);
    EXPECT_EQ([model valueForKey:name], list);
    ASSERT_EQ([list count], 3u);

    id second = [[[list objectAtIndex:1] retain] autorelease];
    if (layouts) {
        SBDisplayItem *item = [[second displayItems] objectAtIndex:0];
        EXPECT_EQ(harness::text([item displayIdentifier]), kPhone);
        EXPECT_EQ(harness::text([item type]), "App");
        EXPECT_TRUE([[[second copy] autorelease] isEqual:second]);
    } else {
        EXPECT_EQ(harness::text(second), kPhone);
    }
    [model remove:second];
    EXPECT_EQ(sim::switcherApplications(), (Lines{kMail, kOne}));
    [model remove:second];
    [model remove:nil];
    [model addToFront:second];
    EXPECT_EQ(sim::switcherApplications(), (Lines{kPhone, kMail, kOne}));
    EXPECT_EQ(harness::events({"quit"}), Lines{}) << "the list alone ends no process";
}

INSTANTIATE_TEST_SUITE_P(Generations, Switcher,
                         testing::Values(sim::Version{7, 0}, sim::Version{7, 1}, sim::Version{8, 0},
                                         sim::Version{8, 3}),
                         [](const auto &info) {
                             return std::to_string(info.param.major) + "_" + std::to_string(info.param.minor);
                         });

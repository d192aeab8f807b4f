// Proves that a double click of the home button shows the switcher behind it, and that cards open, close and
// end applications as on a phone, on both kinds of switcher.
#include "Fingers.h"

#include "SpringBoard/Switcher/SwitcherCard.h"
#include "SpringBoard/Switcher/SwitcherScreen.h"

namespace {

using Lines = std::vector<std::string>;

SBAppSwitcherCardView *card(const char *identifier) {
    UIView *any = harness::findView("SBAppSwitcherCardView");
    for (UIView *view in [[any superview] subviews])
        if (static_cast<SBAppSwitcherCardView *>(view).application == harness::application(identifier))
            return static_cast<SBAppSwitcherCardView *>(view);
    return nil;
}

// Two applications run, the second is in front, and the switcher is open.
void open(sim::Version version) {
    harness::boot(harness::profile("iPhone 5", version));
    sim::openApplication("org.example.1");
    harness::wait(1);
    sim::openApplication("org.example.2");
    harness::wait(1);
    sim::clickHomeButtonTwice();
    harness::wait(1);
    harness::events({});
}

class SwitcherScreen : public testing::TestWithParam<sim::Version> {};

} // namespace

TEST_P(SwitcherScreen, OpensOnADoubleClick) {
    open(GetParam());
    ASSERT_TRUE(sim::switcherIsOpen());
    EXPECT_NEAR(harness::middle(card("org.example.2")).x, 160, 1) << "what is in front stands in the middle";
    EXPECT_GT(harness::middle(card("org.example.1")).x, 250);
    sim::clickHomeButtonTwice();
    harness::wait(1);
    EXPECT_FALSE(harness::findView("SBAppSwitcherCardView"));
    EXPECT_EQ(sim::foregroundApplication(), "org.example.2");
}

TEST_P(SwitcherScreen, OpensAnApplicationOrTheHomeScreen) {
    open(GetParam());
    harness::swipe(CGPointMake(160, 250), -150, 0);
    harness::tap(harness::middle(card("org.example.1")));
    harness::wait(1);
    EXPECT_EQ(sim::foregroundApplication(), "org.example.1");
    EXPECT_FALSE(sim::switcherIsOpen());
    sim::clickHomeButtonTwice();
    harness::wait(1);
    harness::swipe(CGPointMake(160, 250), 180, 0);
    harness::tap(CGPointMake(160, 250));
    harness::wait(1);
    EXPECT_FALSE(sim::foregroundApplication()) << "the first card is the home screen's";
    EXPECT_FALSE(harness::findView("SBAppSwitcherCardView"));
}

TEST_P(SwitcherScreen, EndsWhatIsThrownUp) {
    open(GetParam());
    harness::swipe(CGPointMake(160, 250), 0, -180);
    EXPECT_EQ(harness::events({"quit"}), Lines{"quit how=switcher id=org.example.2"});
    EXPECT_EQ(sim::switcherApplications(), Lines{"org.example.1"});
    EXPECT_FALSE(card("org.example.2"));
    EXPECT_NEAR(harness::middle(card("org.example.1")).x, 160, 1) << "the others close up";
    sim::clickHomeButton();
    harness::wait(1);
    EXPECT_FALSE(harness::findView("SBAppSwitcherCardView"));
    EXPECT_FALSE(sim::foregroundApplication());
}

TEST_P(SwitcherScreen, GoesWithTheDisplay) {
    open(GetParam());
    sim::setDisplay(false);
    EXPECT_FALSE(sim::switcherIsOpen());
    sim::setDisplay(true);
    sim::clickHomeButtonTwice();
    EXPECT_FALSE(sim::switcherIsOpen()) << "there is none over the lock screen";
    sim::unlockDevice();
    EXPECT_EQ(sim::foregroundApplication(), "org.example.2");
}

INSTANTIATE_TEST_SUITE_P(Versions, SwitcherScreen, testing::Values(sim::Version{7, 1}, sim::Version{8, 1}),
                         [](const auto &info) { return info.param.major == 7 ? "seven" : "eight"; });

// What the indicator and the badges do whoever asks: a pulse starts only where the settings let it and ends
// with its view, a spoilt file glows red, not clear, the badges' height is that of the first one seen, and
// badges that others hide stay hidden.
#include "Tweak/Core/PanelViews.h"
#include "Tweak/Core/State.h"
#include "Tweak/Core/Tags.h"
#include "Tweak/Panel/Panel.h"
#include "Tweak/Start/HookTable.h"
#include "Tweak/StatusBar/StatusBar.h"
#include "UIKit/UIKit+Further.h"

#include "SpringBoard/Harness.h"
#include "SpringBoard/Sandbox.h"
#include "UIKit/Application/ApplicationState.h"

namespace {

class Indicator : public testing::Test {
protected:
    void boot(const std::string &text) {
        settings(text);
        harness::boot(harness::profile("iPhone 5"), harness::applications(), [] {
            pendix::createBadgeList();
            pendix::installHooks();
        });
    }

    void settings(const std::string &text) {
        auto file = sandbox.path("/var/mobile/Library/Preferences/org.quillhub.PendixSettings.plist");
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file) << text;
    }

    UIView *view() { return [pendix::Spring pendix]; }
    UIColor *glow() {
        CGColorRef color = [[view() layer] shadowColor];
        return color ? [UIColor colorWithCGColor:color] : nil;
    }
    // Whether the alpha moves from one step of a pulse to the next.
    bool breathes() {
        harness::wait(0.2);
        CGFloat before = [view() alpha];
        harness::wait(0.1);
        return [view() alpha] != before;
    }

    harness::Sandbox sandbox;
};

TEST_F(Indicator, PulsesOnlyWhereTheSettingsLetIt) {
    struct {
        const char *settings;
        bool pulses;
    } const cases[] = {
        {"{ enable = 1; }", false},
        {"{ enable = 1; glow = 1; hide = 1; }", false},
        {"{ enable = 1; hide = 1; }", false},
        {"{ enable = 1; glow = 1; }", true},
    };
    boot("{ enable = 1; }");
    for (const auto &c : cases) {
        settings(c.settings);
        // The poll must not see it: `hide` would take the view away, and no pulse starts without one.
        [pendix::Spring makePulse:[UIColor redColor]];
        EXPECT_EQ([[view() layer] shadowOpacity] == 1, c.pulses) << c.settings;
    }
    EXPECT_TRUE(breathes());
}

TEST_F(Indicator, ABadgeEndsThePulseOfAnIndicatorThatIsToHide) {
    boot("{ enable = 1; glow = 1; }");
    sim::setBadge("org.example.1", 1);
    EXPECT_TRUE(breathes());
    // Before the poll sees it.
    settings("{ enable = 1; glow = 1; hide = 1; }");
    sim::setBadge("org.example.1", 2);
    EXPECT_FALSE(pendix::needToPulse);
    EXPECT_FALSE([pendix::statusbaritem isVisible]);
}

TEST_F(Indicator, ItsLogoIsAwayOnTheSideWithoutAStatusBar) {
    boot("{ enable = 1; }");
    [pendix::Spring tap];
    harness::wait(1);
    UIView *logo = pendix::overlayView(pendix::tags::logo);
    ASSERT_NE(logo, nil);
    sim::setStatusBarHidden(true);
    struct {
        UIInterfaceOrientation orientation;
        CGFloat alpha;
    } const turns[] = {{UIInterfaceOrientationLandscapeRight, 0},
                       {UIInterfaceOrientationPortrait, 1},
                       {UIInterfaceOrientationLandscapeLeft, 0},
                       {UIInterfaceOrientationPortraitUpsideDown, 1}};
    for (const auto &turn : turns) {
        sim::setDeviceOrientation(static_cast<UIDeviceOrientation>(turn.orientation));
        [pendix::Spring pendixWillRotate:[NSNotification notificationWithName:@"turn"
                                                                       object:[UIDevice currentDevice]]];
        EXPECT_EQ(logo.alpha, turn.alpha) << turn.orientation;
    }
    [pendix::Spring tap];
    harness::wait(1);
}

TEST_F(Indicator, CountsOnThePanelAreDrawn) {
    boot("{ enable = 1; }");
    sim::setBadge("org.example.1", 12);
    sim::setBadge("org.example.2", 12); // whose drawing is that of the first
    [pendix::Spring tap];
    harness::wait(1);
    ASSERT_EQ([pendix::itemViews() count], 2U);
    for (UIView *item in pendix::itemViews()) {
        UIView *badge = pendix::subviewWithTag(item, pendix::tags::itemBadge);
        EXPECT_NE([(UIImageView *)[badge.subviews objectAtIndex:0] image], nil);
    }
}

TEST_F(Indicator, ItsPulseEndsWithItsView) {
    boot("{ enable = 1; glow = 1; }");
    sim::setBadge("org.example.1", 1);
    EXPECT_TRUE(breathes());
    [pendix::statusbaritem setVisible:NO];
    harness::wait(0.1);
    EXPECT_EQ(view(), nil);
    [pendix::statusbaritem setVisible:YES];
    EXPECT_FALSE(breathes()) << "the timer has stopped itself";
    sim::setBadge("org.example.1", 2);
    EXPECT_TRUE(breathes()) << "and the next badge starts a new one";
}

TEST_F(Indicator, GlowsRedFromAFileThatCannotBeRead) {
    boot("{ enable = 1; glow = 1; tint = green; }");
    sim::setBadge("org.example.1", 1);
    EXPECT_TRUE([glow() isEqual:[UIColor greenColor]]);
    for (const char *text : {"bplist00 and no more", "( a, list )", ""}) {
        settings(text);
        [[view() layer] setShadowOpacity:0]; // as a status bar does that changes its style
        harness::wait(0.1);
        EXPECT_TRUE([glow() isEqual:[UIColor redColor]]) << text;
    }
    [[view() layer] setShadowOpacity:0];
    std::filesystem::remove(
        sandbox.path("/var/mobile/Library/Preferences/org.quillhub.PendixSettings.plist"));
    harness::wait(0.1);
    EXPECT_TRUE([glow() isEqual:[UIColor clearColor]]) << "only a missing file is clear";
}

TEST_F(Indicator, KeepsTheHeightOfTheFirstBadge) {
    constexpr float kFirst = 24, kTaller = 31;
    boot("{ enable = 1; }");
    sim::setBadge("org.example.1", 1);
    EXPECT_EQ(pendix::badgeHeight, kFirst);
    SBIconBadgeView *badge = harness::badgeOf(harness::iconView("org.example.1"));
    [badge setFrame:CGRectMake(0, 0, kTaller, kTaller)];
    [badge _resizeForTextImage:nil]; // a text that leaves the size alone
    EXPECT_EQ(pendix::badgeHeight, kFirst) << "what stands on the panel keeps one size";
}

TEST_F(Indicator, ShowsNoBadgeThatOthersHide) {
    boot("{ enable = 1; }");
    sim::setBadge("org.example.1", 1);
    SBIconBadgeView *badge = harness::badgeOf(harness::iconView("org.example.1"));
    [badge setHidden:YES];
    sim::setBadge("org.example.1", 2);
    EXPECT_TRUE([badge isHidden]);
}

} // namespace

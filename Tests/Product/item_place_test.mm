// A phone whose interface stays upright while it is turned, or turns later than the panel: the panel turns
// with the device, and all the same its logo is drawn on the indicator, it grows out of it and back into it,
// and it stands on the screen beside it. Everything is measured on the screen as drawn, held in portrait.
#include "Tweak/Core/PanelViews.h"
#include "Tweak/Core/State.h"
#include "Tweak/Core/Tags.h"
#include "Tweak/Panel/Panel.h"
#include "Tweak/Start/HookTable.h"
#include "Tweak/StatusBar/StatusBar.h"

#include "SpringBoard/Harness.h"
#include "SpringBoard/Sandbox.h"
#include "SpringBoard/System/Interface.h"
#include "UIKit/Application/ApplicationState.h"
#include "UIKit/Views/ViewState.h"

namespace {

struct Case {
    const char *device;
    NSInteger orientation;
    const char *settings;
    bool letDown;
};

class UprightInterface : public testing::TestWithParam<Case> {
protected:
    void SetUp() override {
        auto file = sandbox.path("/var/mobile/Library/Preferences/org.quillhub.PendixSettings.plist");
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file) << GetParam().settings;
        constexpr int kWidth = 28, kHeight = 40; // pixels
        sandbox.putImage("/System/Library/Frameworks/UIKit.framework/Black_Pendix@2x.png", kWidth, kHeight,
                         0xff000000);
        harness::boot(harness::profile(GetParam().device), harness::applications(), [] {
            pendix::createBadgeList();
            pendix::installHooks();
        });
        for (int i = 1; i <= 3; ++i) sim::setBadge("org.example." + std::to_string(i), i);
        if (GetParam().letDown) ASSERT_TRUE(sim::setReachability(true));
        harness::wait(0.5);
    }

    // What the view covers on the screen at this moment.
    static CGRect drawn(UIView *view) {
        CGRect bounds = sim::presented([view layer]).bounds;
        CGAffineTransform toScreen = CGAffineTransformIdentity;
        for (; view; view = [view superview])
            toScreen = CGAffineTransformConcat(toScreen, sim::presented([view layer]).toSuperlayer());
        return CGRectApplyAffineTransform(bounds, toScreen);
    }
    static CGRect item() { return drawn([pendix::Spring pendix]); }
    static CGRect panel() { return drawn(pendix::panelView()); }

    void expectOnItem(const char *what) {
        CGRect logo = drawn(pendix::overlayView(pendix::tags::logo));
        EXPECT_NEAR(logo.origin.x, item().origin.x, 0.01) << what;
        EXPECT_NEAR(logo.origin.y, item().origin.y, 0.01) << what;
        EXPECT_NEAR(logo.size.width, item().size.width, 0.01) << what;
        EXPECT_NEAR(logo.size.height, item().size.height, 0.01) << what;
    }

    void expectOnScreen(const char *what) {
        const auto &device = sim::device();
        CGRect screen = CGRectMake(0, 0, device.width, device.height),
               seen = CGRectIntersection(panel(), screen);
        EXPECT_NEAR(seen.size.width, panel().size.width, 0.01) << what << ": across";
        EXPECT_NEAR(seen.size.height, panel().size.height, 0.01) << what << ": down";
        EXPECT_FALSE(CGRectIntersectsRect(panel(), item())) << what << ": beside the indicator, not over it";
        EXPECT_GT(panel().size.width * panel().size.height, 20000) << what << ": in full size";
    }

    // The point from which it grows and into which it shrinks lies in the indicator.
    void expectInItem(const char *what) {
        EXPECT_LE(panel().size.width, 3) << what;
        EXPECT_TRUE(CGRectContainsPoint(CGRectInset(item(), -2, -2), panel().origin)) << what;
    }

    static void rest() { harness::wait(0.9); }

    harness::Sandbox sandbox;
};

TEST_P(UprightInterface, HoldsThePanel) {
    sim::setDeviceOrientation(static_cast<UIDeviceOrientation>(GetParam().orientation));
    harness::wait(1);
    [pendix::Spring tap];
    expectInItem("grows");
    rest();
    expectOnItem("opened");
    expectOnScreen("opened");
    if (GetParam().letDown) {
        sim::setReachability(false);
        rest();
        expectOnItem("up again");
        expectOnScreen("up again");
    }

    sim::setDeviceOrientation(UIDeviceOrientationPortrait);
    rest();
    expectOnItem("turned back");
    expectOnScreen("turned back");
    sim::setDeviceOrientation(static_cast<UIDeviceOrientation>(GetParam().orientation));
    rest();
    expectOnItem("turned while it stands");
    expectOnScreen("turned while it stands");

    [pendix::Spring dismisPendixUI];
    harness::wait(0.49);
    expectInItem("shrinks");
}

TEST_P(UprightInterface, MayFollowLater) {
    [pendix::Spring tap];
    rest();
    auto orientation = static_cast<UIInterfaceOrientation>(GetParam().orientation);
    sim::setDeviceOrientation(static_cast<UIDeviceOrientation>(orientation));
    rest();
    sim::turnDevice(orientation);
    rest();
    expectOnItem("turned after the panel");
    expectOnScreen("turned after the panel");
}

INSTANTIATE_TEST_SUITE_P(Cases, UprightInterface,
                         testing::Values(Case{"iPhone 5", 2, "{ enable = 1; }", false},
                                         Case{"iPhone 5", 3, "{ enable = 1; }", false},
                                         Case{"iPhone 5", 4, "{ enable = 1; }", false},
                                         Case{"iPhone 6", 3, "{ enable = 1; }", false},
                                         Case{"iPad 2", 4, "{ enable = 1; }", false},
                                         Case{"iPhone 6", 2, "{ enable = 1; rech = 1; }", true},
                                         Case{"iPhone 6", 3, "{ enable = 1; rech = 1; }", true},
                                         Case{"iPhone 6", 4, "{ enable = 1; rech = 1; position = top; }",
                                              true}),
                         [](const auto &info) {
                             std::string name = info.param.device;
                             std::erase(name, ' ');
                             return name + "_" + std::to_string(info.param.orientation) +
                                    (info.param.letDown ? "_let_down" : "");
                         });

} // namespace

// The fingerprint glyph shimmers until a finger fails. And one elsewhere in the system draws at its own pace,
// but for as long as the panel waits for a finger.
#include "Tweak/Core/State.h"
#include "Tweak/Lock/PendixTouchIDController.h"
#include "Tweak/Lock/SpringBoard+Lock.h"
#include "Tweak/Panel/Panel.h"
#include "Tweak/Start/HookTable.h"

#include "SpringBoard/Glyph/FingerprintView.h"
#include "SpringBoard/Harness.h"
#include "SpringBoard/Sandbox.h"

namespace {

class Glyph : public testing::Test {
protected:
    void SetUp() override {
        sim::Device device = harness::profile("iPhone 6");
        device.machine = "iPhone7,2";
        settings("enable = YES; pass = YES; password = 1234; touchid = YES;");
        harness::boot(device, harness::applications(), [] {
            pendix::createBadgeList();
            pendix::installHooks();
        });
    }

    void settings(const std::string &text) {
        auto file = sandbox.path("/var/mobile/Library/Preferences/org.quillhub.PendixSettings.plist");
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file) << "{ " << text << " }";
    }

    // Opens the closed panel, or closes the open one.
    void toggle() {
        if (pendix::isShow) {
            [pendix::Spring dismisPendixUI];
        } else {
            [pendix::Spring tap];
        }
    }

    // How long a glyph on another window takes that is told to take 2 s.
    double seconds() {
        UIWindow *other = [[[UIWindow alloc] initWithFrame:CGRectMake(0, 0, 65, 65)] autorelease];
        auto *glyph = [[[PKFingerprintGlyphView alloc] initWithFrame:CGRectMake(0, 0, 65, 65)] autorelease];
        [other addSubview:glyph];
        other.hidden = NO;
        harness::wait(0);
        [glyph setProgress:1 withDuration:2];
        const double taken = static_cast<double>([glyph restTime] - sim::Clock::shared().now()) / 1e9;
        other.hidden = YES;
        return taken;
    }

    harness::Sandbox sandbox;
};

TEST_F(Glyph, ShimmersUntilAFingerFails) {
    toggle();
    harness::wait(1);
    PKGlyphView *glyph = [[PendixTouchIDController sharedInstance] fingerPrint];
    for (unsigned event : {1u, 9u, 10u, 0u}) {
        sim::sendFingerEvent(event);
        EXPECT_NE(glyph.layer.mask, nil) << event;
    }
    sim::sendFingerEvent(5);
    EXPECT_EQ(glyph.layer.mask, nil);
    toggle();
    harness::wait(1);
}

TEST_F(Glyph, KeepsItsPaceElsewhereUnlessThePanelWaits) {
    constexpr double kOwn = 2, kPanels = 0.5;
    EXPECT_EQ(seconds(), kOwn) << "no panel has been open";
    toggle();
    harness::wait(1);
    EXPECT_EQ(seconds(), kPanels) << "it waits for a finger";
    [pendix::Spring usePasscode];
    EXPECT_EQ(seconds(), kOwn) << "on the keypad";
    [pendix::Spring useTochID];
    EXPECT_EQ(seconds(), kPanels) << "back from there";
    toggle();
    EXPECT_EQ(seconds(), kOwn) << "it closes";
    harness::wait(1);
    settings("enable = YES;");
    toggle();
    harness::wait(1);
    ASSERT_TRUE(pendix::isShow);
    EXPECT_EQ(seconds(), kOwn) << "the next one waits for nobody";
}

} // namespace

// A replaced method does its own work on the right side of the system's: what another extension, or the
// system, finds while the system's own method runs is either the state before or the one after. And it hands
// on what it was given where nothing is to be changed.
#include "Tweak/Core/PanelViews.h"
#include "Tweak/Core/State.h"
#include "Tweak/Core/Tags.h"
#include "Tweak/Lock/Replacements.h"
#include "Tweak/Lock/SpringBoard+Lock.h"
#include "Tweak/Panel/Panel.h"
#include "Tweak/Start/HookTable.h"
#include "Tweak/StatusBar/Replacements.h"
#include "Tweak/StatusBar/StatusBar.h"
#include "Tweak/Triggers/Replacements.h"

#include "SpringBoard/Harness.h"
#include "SpringBoard/Sandbox.h"

namespace {

const char *const kApplication = "org.example.1";

UIView *mark() { return pendix::subviewWithTag(harness::iconView(kApplication), pendix::tags::iconMark); }
bool isListed() { return [pendix::datas containsObject:@"org.example.1"]; }

// Set while the system's own method runs: what the test looks at then. The method goes on as it would.
bool (*look)() = nullptr;
int seen = 0; // by what `look` answered: 1 for no, 2 for yes; both bits when it was not the same each time

template <auto *slot, typename Signature = std::remove_pointer_t<decltype(slot)>>
struct Probe;
template <auto *slot, typename Result, typename... Arguments>
struct Probe<slot, Result (*)(Arguments...)> {
    static inline Result (*next)(Arguments...) = nullptr;
    static Result run(Arguments... arguments) {
        if (look) seen |= look() ? 2 : 1;
        return next(arguments...);
    }
    static void install() {
        next = *slot;
        if (next) *slot = run;
    }
};

template <auto *...slots>
void watch() {
    (Probe<slots>::install(), ...);
}

class ReplacedMethod : public testing::TestWithParam<sim::Version> {
protected:
    void boot(const std::string &settings) {
        auto file = sandbox.path("/var/mobile/Library/Preferences/org.quillhub.PendixSettings.plist");
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file) << settings;
        sandbox.putImage("/Library/Application Support/Pendix/pendixMiniNotification.png", 10, 10,
                         0xff0000ff);
        sim::Device device = harness::profile("iPhone 6", GetParam());
        device.machine = "iPhone7,2"; // with a sensor
        harness::boot(device, harness::applications(), [] {
            pendix::createBadgeList();
            pendix::installHooks();
            namespace original = pendix::original;
            watch<&original::resizeForTextImage, &original::updateAccessoryView, &original::willActivate,
                  &original::willAnimateDeactivation, &original::presentBannerForContext,
                  &original::handleDisplayTurnedOff, &original::handleDisplayTurnedOn,
                  &original::handleDisplayTurnedOnWithReason, &original::prepareForUIUnlock>();
        });
        sim::setBadge("org.example.2", 5);
        harness::wait(1);
    }

    // `act` has to run one of the methods; `before` and `after` are what `state` tells on its two sides, and
    // the system's own method has to find the one that `first` says.
    enum class First { theSystem, theExtension };
    void expect(const char *what, First first, bool (*state)(), void (*act)()) {
        const bool before = state();
        seen = 0;
        look = state;
        act();
        look = nullptr;
        const bool after = state();
        EXPECT_NE(before, after) << what << ": has its effect";
        EXPECT_EQ(seen, (first == First::theSystem ? before : after) ? 2 : 1) << what;
    }

    harness::Sandbox sandbox;
};

TEST_P(ReplacedMethod, DoesItsWorkOnTheRightSide) {
    boot("{ enable = 1; b = 1; newb = 1; }");
    const First system = First::theSystem, extension = First::theExtension;
    auto shown = [] { return static_cast<bool>(pendix::isShow); };
    auto locked = [] { return static_cast<bool>(pendix::locked); };
    auto marked = [] { return [mark() alpha] == 1; };

    expect("a badge is listed", system, isListed, [] { sim::setBadge(kApplication, 3); });
    sim::setBadge(kApplication, 0);
    harness::wait(1);
    expect(
        "a mark comes", system, [] { return mark() != nil; }, [] { sim::setBadge(kApplication, 4); });
    expect("a mark fades", system, marked, [] { sim::openApplication(kApplication); });
    harness::wait(1);
    expect("a mark comes back", system, marked, [] { sim::clickHomeButton(); });
    harness::wait(1);

    [pendix::Spring tap];
    harness::wait(1);
    expect("a banner", extension, shown, [] { sim::presentBanner("hello"); });
    harness::wait(7);
    [pendix::Spring tap];
    harness::wait(1);
    expect("the dark closes the panel", extension, shown, [] { sim::setDisplay(false); });
    expect("light", system, locked, [] { sim::setDisplay(true); });
    expect("dark", extension, locked, [] { sim::setDisplay(false); });
    sim::setDisplay(true);
    harness::wait(1);
    [pendix::Spring tap];
    harness::wait(1);
    expect("unlocking closes the panel", system, shown, [] { sim::unlockDevice(); });
}

INSTANTIATE_TEST_SUITE_P(Versions, ReplacedMethod,
                         testing::Values(sim::Version{7, 1}, sim::Version{8, 0}, sim::Version{8, 1}),
                         [](const auto &info) {
                             return std::to_string(info.param.major) + "_" + std::to_string(info.param.minor);
                         });

// The glyphs of others draw as slowly as they are told, unless the panel waits for a finger.
using GlyphPace = ReplacedMethod;

TEST_P(GlyphPace, IsThePanelsOnlyWhileItWaitsForAFinger) {
    static double pace;
    constexpr double kTold = 2, kPanels = 0.5;
    boot("{ enable = 1; pass = 1; password = 1234; touchid = 1; where = everyoff; }");
    pendix::original::setProgress = [](PKFingerprintGlyphView *, SEL, double, double duration, NSUInteger) {
        pace = duration;
    };
    PKFingerprintGlyphView *glyph =
        [[[objc_getClass("PKFingerprintGlyphView") alloc] initWithFrame:CGRectZero] autorelease];
    auto draws = [&] {
        [glyph _setProgress:1 withDuration:kTold forShapeLayerAtIndex:0];
        return pace;
    };
    EXPECT_EQ(draws(), kTold) << "no panel";
    [pendix::Spring tap];
    harness::wait(1);
    EXPECT_EQ(draws(), kTold) << "a panel without a lock";
    [pendix::Spring dismisPendixUI];
    harness::wait(1);
    sim::setDisplay(false);
    sim::setDisplay(true);
    [pendix::Spring tap];
    harness::wait(1);
    EXPECT_EQ(draws(), kPanels) << "waiting for a finger";
    [pendix::Spring usePasscode];
    EXPECT_EQ(draws(), kTold) << "on the keypad";
    [pendix::Spring useTochID];
    EXPECT_EQ(draws(), kPanels) << "and back";
    [pendix::Spring dismisPendixUI];
    EXPECT_EQ(draws(), kTold) << "closing";
}

INSTANTIATE_TEST_SUITE_P(Versions, GlyphPace, testing::Values(sim::Version{8, 1}),
                         [](const auto &) { return "8_1"; });

} // namespace

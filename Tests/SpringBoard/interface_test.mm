// Proves which way the interface lies on which device and version, whatever is in front (known), and that the
// device's orientation is told to those who ask for it whether the interface turns or not (documented).
#include "Harness.h"
#include "UIKit/UIKit+Further.h"

#include "SpringBoard/System/Interface.h"

#include <UIKit/UIKit.h>

#include <array>

// Notes each orientation that it is told of.
@interface Follower : NSObject {
@public
    std::vector<long> told;
}
@end
@implementation Follower
- (void)turned:(NSNotification *)notification {
    told.push_back([static_cast<UIDevice *>([notification object]) orientation]);
}
@end

namespace {

using Orientations = std::vector<long>;

void turn(long orientation) {
    sim::turnDevice(static_cast<UIInterfaceOrientation>(orientation));
    harness::wait(1);
}

long interface() { return [[UIApplication sharedApplication] statusBarOrientation]; }

// How the interface lies after each turn of the device to 3, 4, 2, 3, 2 and 1.
Orientations after() {
    Orientations result;
    for (long orientation : {3, 4, 2, 3, 2, 1}) {
        turn(orientation);
        result.push_back(interface());
    }
    return result;
}

const Orientations kUpright = {1, 1, 1, 1, 1, 1}, kOnItsSides = {3, 4, 4, 3, 3, 1},
                   kAllRound = {3, 4, 2, 3, 2, 1};

struct Case {
    const char *device;
    sim::Version version;
    std::optional<bool> turns;
    Orientations home, application;
};

const Case kCases[] = {
    {"iPhone 5", {7, 1}, {}, kUpright, kOnItsSides},  {"iPhone 5", {8, 1}, {}, kUpright, kOnItsSides},
    {"iPhone 6", {8, 3}, {}, kUpright, kOnItsSides},  {"iPhone 6 Plus", {8, 0}, {}, kOnItsSides, kOnItsSides},
    {"iPad 2", {7, 0}, {}, kAllRound, kAllRound},     {"iPad Air", {8, 1}, {}, kAllRound, kAllRound},
    {"iPhone 5", {7, 1}, true, kAllRound, kAllRound}, {"iPhone 6 Plus", {8, 1}, false, kUpright, kUpright},
    {"iPad Air", {8, 1}, false, kUpright, kUpright},
};

class EachInterface : public testing::TestWithParam<Case> {
protected:
    static sim::SharedOptions options() {
        auto result = harness::applications();
        result.interfaceTurns = GetParam().turns;
        return result;
    }
    static void boot() { harness::boot(harness::profile(GetParam().device, GetParam().version), options()); }
};

// Asks at the launch, as a loaded library does.
Follower *follower = nil;
void follow() {
    follower = [Follower new];
    UIDevice *device = [UIDevice currentDevice];
    EXPECT_EQ([device orientation], 0) << "not known yet";
    [device beginGeneratingDeviceOrientationNotifications];
    EXPECT_EQ([device orientation], 0) << "nor at once";
    [[NSNotificationCenter defaultCenter] addObserver:follower
                                             selector:@selector(turned:)
                                                 name:UIDeviceOrientationDidChangeNotification
                                               object:device];
}

} // namespace

TEST_P(EachInterface, LiesAsItsHomeScreenDoes) {
    boot();
    EXPECT_EQ(after(), GetParam().home);
}

TEST_P(EachInterface, LiesAsAnApplicationDoes) {
    boot();
    sim::openApplication("org.example.1");
    EXPECT_EQ(after(), GetParam().application);
}

TEST_P(EachInterface, FollowsWhatComesToTheFront) {
    boot();
    bool homeTurns = GetParam().home[0] == 3, applicationTurns = GetParam().application[0] == 3;
    long home = homeTurns ? 3 : 1, application = applicationTurns ? 3 : 1;
    struct {
        const char *what;
        void (*act)();
        long lies;
    } const steps[] = {
        {"turned", [] { turn(3); }, home},
        {"opened on its side", [] { sim::openApplication("org.example.1"); }, application},
        {"another one", [] { sim::openApplication("org.example.2"); }, application},
        {"home", [] { sim::clickHomeButton(); }, home},
        {"opened again", [] { sim::openApplication("org.example.1"); }, application},
        {"locked", [] { sim::setDisplay(false); }, home},
        {"lit", [] { sim::setDisplay(true); }, home},
        {"unlocked", [] { sim::unlockDevice(); }, application},
        {"quit", [] { sim::deliverSignal([harness::application("org.example.1") pid], 9); }, home},
    };
    for (const auto &step : steps) {
        SCOPED_TRACE(step.what);
        step.act();
        harness::wait(1);
        EXPECT_EQ(interface(), step.lies);
        CGSize bar = [[[UIApplication sharedApplication] statusBar] bounds].size;
        bool across = step.lies == 3;
        EXPECT_EQ(bar.width, across ? sim::device().height : sim::device().width);
    }
}

TEST_P(EachInterface, TellsOfTheDeviceWhetherItTurnsOrNot) {
    harness::boot(harness::profile(GetParam().device, GetParam().version), options(), follow);
    EXPECT_EQ(follower->told, Orientations{1}) << "as soon as it is known";
    after();
    EXPECT_EQ(follower->told, (Orientations{1, 3, 4, 2, 3, 2, 1}));
    turn(1);
    EXPECT_EQ(follower->told.size(), 7u) << "the same way again is no turn";
}

TEST_P(EachInterface, StartsOnTheSideOnWhichTheDeviceIsHeld) {
    auto held = options();
    held.orientation = UIDeviceOrientationLandscapeLeft;
    harness::boot(harness::profile(GetParam().device, GetParam().version), held, follow);
    EXPECT_EQ(follower->told, Orientations{3});
    EXPECT_EQ(interface(), GetParam().home[0]);
    CGRect page = [[harness::iconView("org.example.1") window] bounds];
    EXPECT_EQ(page.size.width > page.size.height, GetParam().home[0] == 3) << "and is laid out so";
}

INSTANTIATE_TEST_SUITE_P(Device, EachInterface, testing::ValuesIn(kCases), [](const auto &info) {
    const Case &c = info.param;
    std::string name = std::string(c.device) + "_" + sim::toString(c.version);
    for (char &letter : name)
        if (!isalnum(letter)) letter = '_';
    return name + (c.turns ? *c.turns ? "_turning" : "_upright" : "");
});

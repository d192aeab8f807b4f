// Proves that the screen that was let down for the thumb goes back up when something else comes to the front
// or the screen goes dark, and after 8 seconds without a touch (known; that the switcher ends it is
// inferred).
#include "Fingers.h"
#include "SpringBoard/Services/LAActivator+Further.h"
#include "UIKit/UIKit+Further.h"

#include "SpringBoard/System/Interface.h"
#include "UIKit/Touch/TouchInput.h"

#include <Activator/libactivator.h>

// Keeps the home button's press for itself.
@interface SwallowingListener : NSObject <LAListener>
@end
@implementation SwallowingListener
- (void)activator:(LAActivator *)activator receiveEvent:(LAEvent *)event {
    [event setHandled:YES];
}
- (void)activator:(LAActivator *)activator receiveDeactivateEvent:(LAEvent *)event {
    [event setHandled:YES];
}
@end

namespace {

bool isDown() {
    bool active = [[SBReachabilityManager sharedInstance] reachabilityModeActive];
    bool seen = [[[UIApplication sharedApplication] statusBarWindow] frame].origin.y > 0;
    EXPECT_EQ(active, seen) << "what is said is what is seen";
    return active;
}

void letDown() {
    sim::setReachability(true);
    harness::wait(0.5);
    ASSERT_TRUE(isDown());
}

constexpr const char *kName = "org.example.Listener";

void swallowClicks() {
    [[LAActivator sharedInstance] registerListener:[[SwallowingListener new] autorelease]
                                           forName:[NSString stringWithUTF8String:kName]];
    sim::sendActivatorEvent(kName);
}

} // namespace

TEST(Reachability, EndsWithWhatTheScreenShows) {
    struct {
        const char *what;
        void (*before)(), (*act)();
        bool ends;
    } const cases[] = {
        {"nothing happens", [] {}, [] {}, false},
        {"a home click", [] {}, sim::clickHomeButton, true},
        {"one in an application", [] { sim::openApplication("org.example.1"); }, sim::clickHomeButton, true},
        {"one that somebody swallows", swallowClicks, sim::clickHomeButton, false},
        {"two", [] {}, sim::clickHomeButtonTwice, true},
        {"a launch", [] {}, [] { sim::openApplication("org.example.1"); }, true},
        {"one in the background", [] {},
         [] {
             [[UIApplication sharedApplication] launchApplicationWithIdentifier:@"org.example.1"
                                                                      suspended:YES];
         },
         false},
        {"a badge", [] {}, [] { sim::setBadge("org.example.1", 3); }, false},
        {"the button", [] {}, sim::pressLockButton, true},
        {"the display", [] {}, [] { sim::setDisplay(false); }, true},
        {"a turn", [] { sim::openApplication("org.example.1"); },
         [] { sim::turnDevice(UIInterfaceOrientationLandscapeLeft); }, true},
        {"a turn that nothing follows", [] {}, [] { sim::turnDevice(UIInterfaceOrientationLandscapeLeft); },
         false},
    };
    harness::boot();
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        sim::turnDevice(UIInterfaceOrientationPortrait);
        c.before();
        harness::wait(1);
        letDown();
        c.act();
        harness::wait(1);
        EXPECT_EQ(isDown(), !c.ends);
        sim::setReachability(false);
        [[LAActivator sharedInstance] unregisterListenerWithName:[NSString stringWithUTF8String:kName]];
        sim::setDisplay(true);
        sim::unlockDevice();
        sim::clickHomeButton();
        sim::clickHomeButton();
        harness::wait(2);
    }
}

TEST(Reachability, EndsAfterEightSecondsWithoutATouch) {
    // A finger comes down and lifts at these times (0: it does not).
    struct {
        const char *what;
        double down, up, ends;
    } const cases[] = {
        {"untouched", 0, 0, 8},
        {"touched", 5, 5.1, 13.1},
        {"held", 3, 20, 28},
        {"touched at the last moment", 7.9, 7.95, 15.95},
    };
    harness::boot();
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        double start = sim::toSeconds(sim::Clock::shared().now());
        auto waitUntil = [=](double time) {
            harness::wait(start + time - sim::toSeconds(sim::Clock::shared().now()));
        };
        sim::setReachability(true);
        if (c.down > 0) {
            waitUntil(c.down);
            sim::touchBegan(0, {5, 640});
            waitUntil(c.up);
            sim::touchEnded(0);
        }
        waitUntil(c.ends - 0.02);
        EXPECT_TRUE(isDown());
        waitUntil(c.ends + 0.02);
        EXPECT_FALSE([[SBReachabilityManager sharedInstance] reachabilityModeActive]);
        waitUntil(c.ends + 1);
        EXPECT_FALSE(isDown());
    }
}

TEST(Reachability, StartsItsTimeAnewEachTime) {
    harness::boot();
    letDown();
    harness::wait(6);
    sim::setReachability(false);
    letDown();
    harness::wait(6);
    EXPECT_TRUE(isDown());
    harness::wait(3);
    EXPECT_FALSE(isDown());
}

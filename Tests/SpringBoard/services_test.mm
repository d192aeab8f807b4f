// Proves that the system's services answer as on a device that is awake and unlocked, and that those who
// register with them hear of what they registered for.
#include "Harness.h"

#include "SpringBoard/Services/LAActivator+Further.h"
#include "SpringBoard/Services/SBUserAgent+Further.h"

#include <Activator/libactivator.h>
#include <BiometricKit/BiometricKit.h>
#include <SpringBoard/SBLockScreen.h>
#include <UIKit/UIKit.h>

// Keeps what it was sent.
@interface TestListener : NSObject <LAListener> {
@public
    std::vector<std::string> *_received;
    BOOL _swallows;
    NSArray *_modes; // not retained; nil: any
}
@end

@implementation TestListener

- (void)activator:(LAActivator *)activator receiveEvent:(LAEvent *)event {
    _received->push_back("event in " + harness::text([event mode]));
    [event setHandled:_swallows];
}

- (void)activator:(LAActivator *)activator otherListenerDidHandleEvent:(LAEvent *)event {
    _received->push_back("another's event");
}

- (NSArray *)activator:(LAActivator *)activator
    requiresCompatibleEventModesForListenerWithName:(NSString *)name {
    return _modes;
}

- (void)activator:(LAActivator *)activator receiveDeactivateEvent:(LAEvent *)event {
    _received->push_back("home");
    [event setHandled:_swallows];
}

@end

namespace {
using Lines = std::vector<std::string>;
}

TEST(Services, AnswerAsOnAnUnlockedDevice) {
    harness::boot();
    EXPECT_FALSE([[SBLockScreenManager sharedInstance] isUILocked]);
    EXPECT_TRUE([[SBLockScreenManager sharedInstance] lockScreenViewController]);
    EXPECT_FALSE([[SBUserAgent sharedUserAgent] deviceIsLocked]);
    EXPECT_FALSE([[SBUserAgent sharedUserAgent] deviceIsPasscodeLocked]);
    EXPECT_FALSE([[SBReachabilityManager sharedInstance] reachabilityModeActive]);
    EXPECT_FALSE([[SBUIBiometricEventMonitor sharedInstance] isMatchingEnabled]);
}

TEST(Activator, SendsEventsToTheListenerByName) {
    harness::boot();
    Lines received;
    TestListener *listener = [[TestListener new] autorelease];
    listener->_received = &received;
    [[LAActivator sharedInstance] registerListener:listener forName:@"org.example.Listener"];
    EXPECT_EQ([listener retainCount], 2u);
    EXPECT_EQ(harness::events({"listener"}), Lines{"listener name=org.example.Listener"});
    EXPECT_FALSE(sim::sendActivatorEvent("org.example.Nobody"));
    EXPECT_TRUE(sim::sendActivatorEvent("org.example.Listener"));
    sim::openApplication("com.apple.mobilemail");
    EXPECT_TRUE(sim::sendActivatorEvent("org.example.Listener"));
    listener->_swallows = YES;
    sim::clickHomeButton();
    EXPECT_TRUE(sim::foregroundApplication()) << "the press was swallowed";
    listener->_swallows = NO;
    sim::clickHomeButton();
    harness::wait(1);
    EXPECT_FALSE(sim::foregroundApplication());
    EXPECT_EQ(received, (Lines{"event in springboard", "event in application", "home", "home"}));
}

TEST(Activator, KeepsToTheModesOfAListenerAndTellsTheOthers) {
    harness::boot();
    Lines received, others;
    TestListener *listener = [[TestListener new] autorelease], *other = [[TestListener new] autorelease];
    listener->_received = &received;
    other->_received = &others;
    LAActivator *activator = [LAActivator sharedInstance];
    [activator registerListener:other forName:@"org.example.Another"];
    [activator registerListener:listener forName:@"org.example.Listener"];
    NSArray *names = [NSArray arrayWithObjects:@"org.example.Another", @"org.example.Listener", nil];
    EXPECT_TRUE([[activator availableListenerNames] isEqual:names]);
    EXPECT_EQ([activator listenerForName:@"org.example.Another"], other);
    EXPECT_EQ(harness::text([activator localizedTitleForListenerName:@"org.example.Another"]),
              "org.example.Another");
    listener->_modes = [NSArray arrayWithObjects:@"application", @"lockscreen", nil];
    EXPECT_TRUE(sim::sendActivatorEvent("org.example.Listener"));
    EXPECT_EQ(received, Lines{}) << "not on the home screen";
    sim::setDisplay(false);
    sim::setDisplay(true);
    sim::sendActivatorEvent("org.example.Listener");
    EXPECT_EQ(received, Lines{"event in lockscreen"});
    EXPECT_EQ(others, Lines{}) << "it was not handled";
    listener->_swallows = YES;
    sim::sendActivatorEvent("org.example.Listener");
    EXPECT_EQ(others, Lines{"another's event"});
    [activator unregisterListenerWithName:@"org.example.Listener"];
    EXPECT_FALSE(sim::sendActivatorEvent("org.example.Listener"));
    EXPECT_FALSE([activator listenerWithName:@"org.example.Listener"
                   isCompatibleWithEventMode:@"application"]);
}

TEST(Biometrics, TellOfObserversAndMatching) {
    harness::boot();
    SBUIBiometricEventMonitor *monitor = [SBUIBiometricEventMonitor sharedInstance];
    EXPECT_EQ([[BiometricKit manager] delegate], monitor);
    NSObject *observer = [[NSObject new] autorelease];
    NSUInteger before = [observer retainCount];
    [monitor addObserver:observer];
    [monitor addObserver:observer];
    [monitor _setMatchingEnabled:YES];
    [monitor _startMatching];
    EXPECT_TRUE([monitor isMatchingEnabled]);
    [monitor _setMatchingEnabled:NO];
    [monitor removeObserver:observer];
    [monitor removeObserver:observer];
    EXPECT_EQ([observer retainCount], before) << "observers are not retained";
    EXPECT_EQ(harness::events({"biometric"}),
              (Lines{"biometric what=observe", "biometric what=matching_on", "biometric what=start",
                     "biometric what=matching_off", "biometric what=unobserve"}));
}

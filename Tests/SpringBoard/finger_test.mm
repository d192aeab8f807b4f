// Proves that the fingerprint sensor tells its observers while it looks for a match and nobody otherwise, and
// that the glyph shows it: ridges that fill, a tick, and completions that run once when the drawing rests.
#include "Fingers.h"

#include "SpringBoard/Biometrics/BiometricKit+Further.h"
#include "UIKit/QuartzCore/LayerState.h"
#include "UIKit/UIKit+Further.h"

#include <BiometricKit/BiometricKit.h>
#include <PassKit/PKGlyphView.h>
#include <Substrate/CydiaSubstrate.h>

#include <set>

using Lines = std::vector<std::string>;

@interface TestObserver : NSObject {
@public
    Lines *_heard;
    BOOL _leaves;
}
@end

@implementation TestObserver

- (void)biometricEventMonitor:(SBUIBiometricEventMonitor *)monitor handleBiometricEvent:(NSUInteger)event {
    _heard->push_back((_leaves ? "leaving " : "staying ") + std::to_string(event));
    if (_leaves) [monitor removeObserver:self];
}

@end

namespace {

void bootWithSensor(bool sensor = true) {
    sim::Device device = harness::profile("iPhone 6");
    device.touchSensor = sensor;
    harness::boot(device);
}

TestObserver *observe(Lines &heard, BOOL leaves) {
    TestObserver *observer = [[TestObserver new] autorelease];
    observer->_heard = &heard;
    observer->_leaves = leaves;
    [[SBUIBiometricEventMonitor sharedInstance] addObserver:observer];
    return observer;
}

std::set<double> durations;
IMP original = nullptr;

void setProgress(id self, SEL selector, double progress, double duration, NSUInteger index) {
    durations.insert(duration);
    constexpr double kSlower = 2;
    reinterpret_cast<decltype(&setProgress)>(original)(self, selector, progress, kSlower, index);
}

PKGlyphView *showGlyph() {
    UIWindow *window = [[[UIWindow alloc] initWithFrame:[[UIScreen mainScreen] bounds]] autorelease];
    PKGlyphView *glyph = [[[PKGlyphView alloc] initWithStyle:0] autorelease];
    [glyph setFrame:CGRectMake(100, 100, 65, 65)];
    [window addSubview:glyph];
    [window setHidden:NO];
    harness::wait(0);
    return glyph;
}

// The mean share of the ridges in the primary colour, at this moment.
double filled(PKGlyphView *glyph) {
    double sum = 0, count = 0;
    auto layers = sim::state([[[glyph subviews] objectAtIndex:0] layer]).sublayers;
    for (size_t i = layers.size() / 2; i < layers.size(); ++i, ++count)
        sum += sim::presented(layers[i]).strokeEnd;
    return sum / count;
}

double alphaOf(PKGlyphView *glyph, NSUInteger part) {
    return sim::presented([[[glyph subviews] objectAtIndex:part] layer]).opacity;
}

} // namespace

TEST(Finger, IsToldOfWhileAMatchIsLookedFor) {
    bootWithSensor();
    Lines heard;
    SBUIBiometricEventMonitor *monitor = [SBUIBiometricEventMonitor sharedInstance];
    observe(heard, YES);
    observe(heard, NO);
    EXPECT_TRUE(sim::sendFingerEvent(1));
    EXPECT_EQ(heard, Lines{}) << "matching is off";
    [[BiometricKit manager] match:nil];
    EXPECT_TRUE([monitor isMatchingEnabled]);
    sim::sendFingerEvent(1);
    sim::sendFingerEvent(3);
    [[BiometricKit manager] cancel];
    sim::sendFingerEvent(0);
    EXPECT_EQ(heard, (Lines{"leaving 1", "staying 1", "staying 3"}));
}

TEST(Finger, FindsNoSensorOnOtherDevices) {
    bootWithSensor(false);
    Lines heard;
    observe(heard, NO);
    [[SBUIBiometricEventMonitor sharedInstance] _setMatchingEnabled:YES];
    EXPECT_FALSE(sim::sendFingerEvent(1));
    EXPECT_EQ(heard, Lines{});
}

TEST(Glyph, FillsAndTicks) {
    bootWithSensor();
    PKGlyphView *glyph = showGlyph();
    __block int completions = 0;
    void (^complete)(void) = ^{ ++completions; };
    [glyph setState:1 animated:YES completionHandler:complete];
    harness::wait(0.2);
    EXPECT_GT(filled(glyph), 0.1);
    EXPECT_LT(filled(glyph), 0.9);
    EXPECT_EQ(completions, 0);
    harness::wait(1);
    EXPECT_EQ(filled(glyph), 1);
    EXPECT_EQ(completions, 1);
    [glyph setState:6 animated:YES completionHandler:complete];
    EXPECT_EQ(alphaOf(glyph, 0), 1);
    harness::wait(0.3);
    EXPECT_EQ(completions, 1) << "the tick is being drawn";
    harness::wait(1);
    EXPECT_EQ(completions, 2);
    EXPECT_EQ(alphaOf(glyph, 0), 0);
    [glyph setState:0 animated:YES completionHandler:nil];
    harness::wait(1);
    EXPECT_EQ(filled(glyph), 0);
    EXPECT_EQ(alphaOf(glyph, 0), 1);
    [glyph setState:6 animated:NO completionHandler:complete];
    EXPECT_EQ(completions, 3) << "at once";
    EXPECT_EQ(alphaOf(glyph, 0), 0);
}

TEST(Glyph, CompletesOnceWhateverHappens) {
    bootWithSensor();
    PKGlyphView *glyph = showGlyph();
    __block Lines order;
    [glyph setState:6 animated:YES completionHandler:^{ order.push_back("tick"); }];
    harness::wait(0.1);
    [glyph setState:0 animated:YES completionHandler:^{ order.push_back("idle"); }];
    harness::wait(2);
    EXPECT_EQ(order, (Lines{"tick", "idle"}));
    EXPECT_EQ(filled(glyph), 0) << "no tick is drawn any more";
    EXPECT_EQ(alphaOf(glyph, 0), 1);
    order.clear();
    [glyph setState:6 animated:YES completionHandler:^{ order.push_back("tick"); }];
    harness::wait(0.3);
    [glyph removeFromSuperview];
    harness::wait(2);
    EXPECT_EQ(order, Lines{"tick"});
}

TEST(Glyph, MovesItsRidgesThroughTheMessageThatOthersListenTo) {
    bootWithSensor();
    MSHookMessageEx(objc_getClass("PKFingerprintGlyphView"),
                    sel_registerName("_setProgress:withDuration:forShapeLayerAtIndex:"),
                    reinterpret_cast<IMP>(setProgress), &original);
    PKGlyphView *glyph = showGlyph();
    __block bool done = false;
    [glyph setState:1 animated:YES completionHandler:^{ done = true; }];
    ASSERT_EQ(durations.size(), 1u);
    EXPECT_LT(*durations.begin(), 1);
    harness::wait(1);
    EXPECT_NEAR(filled(glyph), 0.5, 0.01) << "twice as slow";
    EXPECT_FALSE(done);
    harness::wait(1.1);
    EXPECT_TRUE(done);
}

// Foundation's timers and delayed performs on the virtual clock: they fire when due, never drift, keep their
// targets as long as the platform does, and can be stopped from anywhere, their own call included.
#import <Foundation/Foundation.h>

#include "Runtime/Time/Clock.hpp"
#include "Runtime/Time/Timers.hpp"

#include <gmock/gmock.h>

using sim::Clock;
using sim::kSecond;
using testing::ElementsAre;

static int alive;

@interface Listener : NSObject {
@public
    std::vector<double> *times;
    BOOL stops;
    id seen;
}
- (void)fired:(NSTimer *)timer;
- (void)note:(id)argument;
@end

@implementation Listener
- (id)init {
    ++alive;
    times = new std::vector<double>;
    return [super init];
}
- (void)dealloc {
    --alive;
    delete times;
    [super dealloc];
}
- (void)fired:(NSTimer *)timer {
    times->push_back(sim::toSeconds(Clock::shared().now()));
    seen = [timer userInfo];
    if (stops) [timer invalidate];
}
- (void)note:(id)argument {
    times->push_back(sim::toSeconds(Clock::shared().now()));
    seen = argument;
}
@end

namespace {

void wait(double seconds) { Clock::shared().advance(Clock::shared().now() + sim::fromSeconds(seconds)); }

NSTimer *start(double interval, Listener *target, BOOL repeats, id info = nil) {
    return [NSTimer scheduledTimerWithTimeInterval:interval
                                            target:target
                                          selector:@selector(fired:)
                                          userInfo:info
                                           repeats:repeats];
}

} // namespace

TEST(Timers, FireOnceOrAgainAndAgainAndHandOverTheirInfo) {
    Listener *once = [[Listener new] autorelease], *often = [[Listener new] autorelease];
    NSTimer *single = start(0.3, once, NO, @"info");
    NSTimer *repeated = start(0.2, often, YES);
    EXPECT_EQ(sim::scheduledTimers(), 2u);
    EXPECT_EQ([repeated timeInterval], 0.2);
    wait(1);
    EXPECT_THAT(*once->times, ElementsAre(0.3));
    EXPECT_THAT(*often->times, ElementsAre(0.2, 0.4, 0.6, 0.8, 1.0));
    EXPECT_STREQ([once->seen UTF8String], "info");
    EXPECT_FALSE([single isValid]);
    EXPECT_TRUE([repeated isValid]);
    EXPECT_EQ(sim::scheduledTimers(), 1u);
}

TEST(Timers, NeverDriftOverADay) {
    Listener *listener = [[Listener new] autorelease];
    start(1, listener, YES);
    Clock::shared().advance(86'400 * kSecond);
    ASSERT_EQ(listener->times->size(), 86'400u);
    for (size_t i = 0; i < listener->times->size(); ++i)
        ASSERT_EQ((*listener->times)[i], static_cast<double>(i + 1));
}

TEST(Timers, CanBeInvalidatedInTheirOwnCall) {
    Listener *listener = [[Listener new] autorelease];
    listener->stops = YES;
    NSTimer *timer = [start(0.1, listener, YES) retain];
    wait(1);
    EXPECT_EQ(listener->times->size(), 1u);
    EXPECT_FALSE([timer isValid]);
    EXPECT_EQ(sim::scheduledTimers(), 0u);
    [timer release];
}

TEST(Timers, KeepTheirTargetUntilTheyEnd) {
    NSTimer *repeated;
    @autoreleasepool {
        start(0.1, [[Listener new] autorelease], NO);
        repeated = start(0.1, [[Listener new] autorelease], YES);
    }
    EXPECT_EQ(alive, 2);
    wait(0.1);
    EXPECT_EQ(alive, 1);
    @autoreleasepool {
        [repeated invalidate];
    }
    EXPECT_EQ(alive, 0);
}

TEST(Timers, WaitForARunLoopWhenMadeUnscheduled) {
    Listener *listener = [[Listener new] autorelease];
    NSTimer *timer = [NSTimer timerWithTimeInterval:0.5
                                             target:listener
                                           selector:@selector(fired:)
                                           userInfo:nil
                                            repeats:NO];
    wait(1);
    EXPECT_TRUE(listener->times->empty());
    [[NSRunLoop currentRunLoop] addTimer:timer forMode:NSRunLoopCommonModes];
    [[NSRunLoop currentRunLoop] addTimer:timer forMode:NSDefaultRunLoopMode];
    wait(1);
    EXPECT_EQ(listener->times->size(), 1u);
}

TEST(Timers, MadeForADateFireThen) {
    Listener *listener = [[Listener new] autorelease];
    NSTimer *timer = [[NSTimer alloc] initWithFireDate:[NSDate dateWithTimeIntervalSinceNow:2]
                                              interval:0.5
                                                target:listener
                                              selector:@selector(fired:)
                                              userInfo:nil
                                               repeats:YES];
    [[NSRunLoop mainRunLoop] addTimer:timer forMode:NSDefaultRunLoopMode];
    [timer release];
    wait(3);
    EXPECT_EQ(listener->times->size(), 3u);
}

TEST(Timers, MoveToAnotherFireDate) {
    Listener *listener = [[Listener new] autorelease];
    NSTimer *timer = start(10, listener, YES);
    [timer setFireDate:[NSDate dateWithTimeIntervalSinceNow:2]];
    EXPECT_NEAR([[timer fireDate] timeIntervalSinceNow], 2, 1e-6);
    wait(13);
    ASSERT_EQ(listener->times->size(), 2u);
    EXPECT_NEAR((*listener->times)[0], 2, 1e-6);
    EXPECT_NEAR((*listener->times)[1], 12, 1e-6);
}

TEST(Timers, FireEarlyWhenToldWithoutLosingTheirPlace) {
    Listener *listener = [[Listener new] autorelease];
    NSTimer *timer = start(1, listener, YES);
    wait(0.25);
    [timer fire];
    wait(1);
    EXPECT_THAT(*listener->times, ElementsAre(0.25, 1.0));
}

TEST(DelayedPerforms, RunWhenDueAndKeepTargetAndArgumentUntilThen) {
    @autoreleasepool {
        [[[Listener new] autorelease] performSelector:@selector(note:)
                                           withObject:[[Listener new] autorelease]
                                           afterDelay:0.5];
    }
    EXPECT_EQ(alive, 2);
    EXPECT_EQ(sim::scheduledTimers(), 0u);
    wait(0.4);
    EXPECT_EQ(alive, 2);
    wait(0.2);
    EXPECT_EQ(alive, 0);
}

TEST(DelayedPerforms, AreCancelledByTargetSelectorAndEqualArgument) {
    Listener *listener = [[Listener new] autorelease], *other = [[Listener new] autorelease];
    auto later = [](Listener *target, id argument) {
        [target performSelector:@selector(note:) withObject:argument afterDelay:1];
    };
    later(listener, @"a");
    later(listener, @"b");
    later(listener, nil);
    later(other, @"a");
    [NSObject cancelPreviousPerformRequestsWithTarget:listener
                                             selector:@selector(note:)
                                               object:[NSMutableString stringWithString:@"a"]];
    [NSObject cancelPreviousPerformRequestsWithTarget:listener selector:@selector(fired:) object:@"b"];
    wait(1);
    EXPECT_EQ(listener->times->size(), 2u);
    EXPECT_EQ(other->times->size(), 1u);
    later(listener, @"c");
    later(other, @"c");
    [NSObject cancelPreviousPerformRequestsWithTarget:listener];
    wait(1);
    EXPECT_EQ(listener->times->size(), 2u);
    EXPECT_EQ(other->times->size(), 2u);
}

TEST(DelayedPerforms, WithoutDelayStillComeAfterTheCaller) {
    Listener *listener = [[Listener new] autorelease];
    [listener performSelector:@selector(note:) withObject:nil afterDelay:0];
    EXPECT_TRUE(listener->times->empty());
    Clock::shared().settleNow();
    EXPECT_EQ(listener->times->size(), 1u);
}

TEST(Dates, FollowTheVirtualClockAlone) {
    sim::setWallClock(1425205230);
    NSDate *before = [NSDate date];
    wait(2.5);
    EXPECT_EQ([[NSDate date] timeIntervalSinceDate:before], 2.5);
    EXPECT_EQ([[[[NSDate alloc] init] autorelease] timeIntervalSince1970], 1425205232.5);
}

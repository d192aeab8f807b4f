// Proves that a finger on a scroll view holds back the timers and display links of the default run-loop mode
// and no others (documented), from its touch to its lifting and not while the content runs out (inferred).
#include "ScrollStage.h"

#include <QuartzCore/QuartzCore.h>

#include <algorithm>

using namespace harness;

// Notes its name for each call.
@interface Clockwork : NSObject {
@public
    std::string name;
}
- (void)tick:(id)sender;
@end
@implementation Clockwork
- (void)tick:(id)sender {
    note(name);
}
@end

namespace {

Clockwork *clockwork(const std::string &name) {
    Clockwork *result = [[Clockwork new] autorelease];
    result->name = name;
    return result;
}

NSTimer *addTimer(const std::string &name, double seconds, std::vector<NSString *> modes,
                  bool repeats = true) {
    NSTimer *timer = [NSTimer timerWithTimeInterval:seconds
                                             target:clockwork(name)
                                           selector:@selector(tick:)
                                           userInfo:nil
                                            repeats:repeats];
    for (NSString *mode : modes) [[NSRunLoop mainRunLoop] addTimer:timer forMode:mode];
    return timer;
}

long count(const Lines &lines, const std::string &name) {
    return std::count(lines.begin(), lines.end(), name);
}

struct WithoutDelegate : ScrollStage {
    WithoutDelegate() : ScrollStage({9000, 200}) { [view setDelegate:nil]; }
};

NSString *mode() { return [[NSRunLoop mainRunLoop] currentMode]; }

} // namespace

TEST(RunLoopModes, DecideWhichTimersGoOnUnderAFinger) {
    WithoutDelegate stage;
    addTimer("default", 0.1, {NSDefaultRunLoopMode});
    addTimer("common", 0.1, {NSRunLoopCommonModes});
    addTimer("tracking", 0.1, {UITrackingRunLoopMode});
    addTimer("both", 0.1, {UITrackingRunLoopMode, NSDefaultRunLoopMode});
    addTimer("another's", 0.1, {@"org.example.mode"});
    [NSTimer scheduledTimerWithTimeInterval:0.1
                                     target:clockwork("scheduled")
                                   selector:@selector(tick:)
                                   userInfo:nil
                                    repeats:YES];
    struct {
        const char *what;
        void (*act)();
        double seconds;
        NSString *mode;
        long scheduled, tracking, common; // how often each fires
    } const steps[] = {
        {"untouched", [] {}, 1, NSDefaultRunLoopMode, 10, 0, 10},
        // What has waited all the time fires as soon as it may, once.
        {"a finger rests",
         [] {
             down({200, 100});
         },
         1, UITrackingRunLoopMode, 0, 11, 10},
        {"it drags",
         [] {
             glide({200, 100}, {100, 100}, 1);
         },
         0, UITrackingRunLoopMode, 0, 10, 10},
        // One for all that are late, and those that are due from now on.
        {"it lifts", [] { up(); }, 1, NSDefaultRunLoopMode, 11, 0, 10},
    };
    for (const auto &step : steps) {
        SCOPED_TRACE(step.what);
        step.act();
        waitFor(step.seconds);
        EXPECT_STREQ([mode() UTF8String], [step.mode UTF8String]);
        auto heard = takeNotes();
        EXPECT_EQ(count(heard, "scheduled"), step.scheduled);
        EXPECT_EQ(count(heard, "default"), step.scheduled);
        EXPECT_EQ(count(heard, "tracking"), step.tracking);
        EXPECT_EQ(count(heard, "common"), step.common);
        EXPECT_EQ(count(heard, "both"), step.common);
        EXPECT_EQ(count(heard, "another's"), 0);
    }
}

TEST(RunLoopModes, LateTimersFireAtOnceWhenTheFingerLiftsInTheOrderInWhichTheyWereDue) {
    WithoutDelegate stage;
    addTimer("often", 0.25, {NSDefaultRunLoopMode});
    addTimer("late", 0.4, {NSDefaultRunLoopMode}, false);
    addTimer("early", 0.1, {NSDefaultRunLoopMode}, false);
    NSTimer *stopped = addTimer("stopped", 0.1, {NSDefaultRunLoopMode}, false);
    NSTimer *moved = addTimer("moved", 0.1, {NSDefaultRunLoopMode}, false);
    [clockwork("delayed") performSelector:@selector(tick:) withObject:nil afterDelay:0.2];
    Clockwork *cancelled = clockwork("cancelled");
    [cancelled performSelector:@selector(tick:) withObject:nil afterDelay:0.2];
    [clockwork("delayed in common modes") performSelector:@selector(tick:)
                                               withObject:nil
                                               afterDelay:0.2
                                                  inModes:[NSArray arrayWithObject:NSRunLoopCommonModes]];
    down({200, 100});
    waitFor(0.6);
    EXPECT_EQ(takeNotes(), Lines{"delayed in common modes"});
    [stopped invalidate];
    [NSObject cancelPreviousPerformRequestsWithTarget:cancelled];
    [moved setFireDate:[NSDate dateWithTimeIntervalSinceNow:0.3]];
    up();
    EXPECT_EQ(takeNotes(), (Lines{"early", "delayed", "often", "late"}));
    waitFor(0.14); // to 0.74
    EXPECT_EQ(takeNotes(), Lines{});
    waitFor(0.02); // it keeps its place
    EXPECT_EQ(takeNotes(), Lines{"often"});
    waitFor(0.2);
    EXPECT_EQ(takeNotes(), Lines{"moved"});
}

TEST(RunLoopModes, DecideWhichDisplayLinksGoOnUnderAFinger) {
    WithoutDelegate stage;
    std::vector<CADisplayLink *> links;
    auto add = [&](const std::string &name, NSString *mode) {
        CADisplayLink *link = [CADisplayLink displayLinkWithTarget:clockwork(name) selector:@selector(tick:)];
        [link addToRunLoop:[NSRunLoop mainRunLoop] forMode:mode];
        links.push_back(link);
        return link;
    };
    add("default", NSDefaultRunLoopMode);
    CADisplayLink *common = add("common", NSRunLoopCommonModes), *half = add("half", NSRunLoopCommonModes);
    [half setFrameInterval:2];
    CADisplayLink *paused = add("paused", NSRunLoopCommonModes);
    [paused setPaused:YES];
    struct {
        const char *what;
        void (*act)();
        long plain, common, half; // calls in half a second of 30 frames
    } const steps[] = {
        {"untouched", [] {}, 30, 30, 15},
        {"a finger rests",
         [] {
             down({200, 100});
         },
         0, 30, 15},
        {"it lifts", [] { up(); }, 30, 30, 15},
    };
    for (const auto &step : steps) {
        SCOPED_TRACE(step.what);
        step.act();
        waitFor(0.5);
        auto heard = takeNotes();
        EXPECT_EQ(count(heard, "default"), step.plain);
        EXPECT_EQ(count(heard, "common"), step.common);
        EXPECT_EQ(count(heard, "half"), step.half);
        EXPECT_EQ(count(heard, "paused"), 0);
        EXPECT_EQ([common timestamp], now());
    }
    [common removeFromRunLoop:[NSRunLoop mainRunLoop] forMode:NSRunLoopCommonModes];
    NSUInteger held = [half retainCount];
    [half retain];
    @autoreleasepool {
        [half invalidate];
    }
    waitFor(0.5);
    auto heard = takeNotes();
    EXPECT_EQ(count(heard, "common") + count(heard, "half"), 0);
    EXPECT_EQ([half retainCount], held) << "the run loop has let it go";
    [half addToRunLoop:[NSRunLoop mainRunLoop] forMode:NSRunLoopCommonModes];
    waitFor(0.5);
    EXPECT_EQ(count(takeNotes(), "half"), 0) << "invalidated once and for all";
    [half release];
    for (CADisplayLink *link : links) [link invalidate];
}

TEST(RunLoopModes, EndWithTheTouchHoweverItEnds) {
    struct {
        const char *what;
        bool scrolls; // the view takes fingers for scrolling at all
        void (*act)(ScrollStage &stage);
        NSString *during, *after;
    } const cases[] = {
        {"a tap", true, [](ScrollStage &) {}, UITrackingRunLoopMode, NSDefaultRunLoopMode},
        {"a fling", true,
         [](ScrollStage &) {
             glide({200, 100}, {100, 100}, 0.1);
         },
         UITrackingRunLoopMode, NSDefaultRunLoopMode},
        {"the view is taken away", true,
         [](ScrollStage &stage) {
             [stage.view removeFromSuperview];
             waitFor(0);
         },
         NSDefaultRunLoopMode, NSDefaultRunLoopMode},
        {"scrolling is switched off", true, [](ScrollStage &stage) { [stage.view setScrollEnabled:NO]; },
         NSDefaultRunLoopMode, NSDefaultRunLoopMode},
        {"the system takes the touch", true, [](ScrollStage &) { cancel(); }, NSDefaultRunLoopMode,
         NSDefaultRunLoopMode},
        {"a view that does not scroll", false, [](ScrollStage &) {}, NSDefaultRunLoopMode,
         NSDefaultRunLoopMode},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        WithoutDelegate stage;
        [stage.view setScrollEnabled:c.scrolls];
        down({200, 100});
        c.act(stage);
        EXPECT_STREQ([mode() UTF8String], [c.during UTF8String]);
        up();
        EXPECT_STREQ([mode() UTF8String], [c.after UTF8String]);
        waitFor(5);
    }
}

#import <Foundation/Foundation.h>

#include "RunLoop.hpp"
#include "Runtime/Objc/Methods.hpp"
#include "Timers.hpp"

#include <algorithm>
#include <set>
#include <tuple>
#include <vector>

using sim::Clock;
using sim::Nanos;

// A timer on the virtual clock. Scheduled timers are retained by the schedule, as by a run loop.
@interface SimTimer : NSTimer {
@public
    Nanos due;
    Nanos step;              // 0: fires once
    sim::RunLoopModes modes; // 0: not scheduled
    Clock::TaskId task;
    BOOL live;
    id target;
    SEL action;
    id info;
}
- (void)scheduleInModes:(sim::RunLoopModes)more;
@end

namespace {

// Foundation's own lower bound for a repeating timer's interval.
constexpr double kShortestInterval = 0.0001;

std::set<SimTimer *> &scheduled() {
    // Never destroyed: what is scheduled at the end of the process is no leak.
    static auto &timers = *new std::set<SimTimer *>;
    return timers;
}

void call(id target, SEL action, id argument) {
    reinterpret_cast<void (*)(id, SEL, id)>([target methodForSelector:action])(target, action, argument);
}

} // namespace

@implementation SimTimer

- (void)scheduleInModes:(sim::RunLoopModes)more {
    if (!live || (modes | more) == modes) return;
    modes |= more;
    if (scheduled().insert(self).second) [self retain];
    [self arm];
}

- (void)arm {
    SimTimer *timer = self;
    sim::cancelInModes(task);
    task = sim::scheduleInModes(due, modes, [timer] {
        [[timer retain] autorelease];
        timer->task = 0;
        if (timer->step) {
            // Late firings are dropped, not made up for.
            do timer->due += timer->step;
            while (timer->due <= Clock::shared().now());
            [timer arm];
        }
        [timer fire];
    });
}

- (void)fire {
    if (!live) return;
    [[self retain] autorelease];
    call([[target retain] autorelease], action, self);
    if (!step) [self invalidate];
}

- (void)invalidate {
    if (!live) return;
    live = NO;
    sim::cancelInModes(task);
    task = 0;
    [target autorelease];
    [info autorelease];
    target = info = nil;
    if (scheduled().erase(self)) [self autorelease];
}

- (BOOL)isValid {
    return live;
}

- (id)userInfo {
    return info;
}

- (NSTimeInterval)timeInterval {
    return sim::toSeconds(step);
}

- (NSDate *)fireDate {
    double fromNow = sim::toSeconds(due - Clock::shared().now());
    return [NSDate dateWithTimeIntervalSinceNow:fromNow];
}

- (void)setFireDate:(NSDate *)date {
    due = Clock::shared().now() + sim::fromSeconds([date timeIntervalSinceNow]);
    if (task) [self arm];
}

- (void)dealloc {
    [self invalidate];
    [super dealloc];
}

@end

namespace {

SimTimer *makeTimer(NSTimeInterval interval, id target, SEL action, id info, BOOL repeats) {
    auto *timer = static_cast<SimTimer *>(NSAllocateObject([SimTimer class], 0, nullptr));
    Nanos step = sim::fromSeconds(interval > 0 ? interval : kShortestInterval);
    timer->due = Clock::shared().now() + step;
    timer->step = repeats ? step : 0;
    timer->live = YES;
    timer->target = [target retain];
    timer->action = action;
    timer->info = [info retain];
    return [timer autorelease];
}

id unscheduledTimer(id, SEL, NSTimeInterval interval, id target, SEL action, id info, BOOL repeats) {
    return makeTimer(interval, target, action, info, repeats);
}

id scheduledTimer(id, SEL, NSTimeInterval interval, id target, SEL action, id info, BOOL repeats) {
    SimTimer *timer = makeTimer(interval, target, action, info, repeats);
    [timer scheduleInModes:sim::kDefaultMode];
    return timer;
}

id initTimer(NSTimer *self, SEL, NSDate *fireDate, NSTimeInterval interval, id target, SEL action, id info,
             BOOL repeats) {
    [self release];
    SimTimer *timer = [makeTimer(interval, target, action, info, repeats) retain];
    [timer setFireDate:fireDate];
    return timer;
}

void addTimer(id, SEL, id timer, NSString *mode) {
    [static_cast<SimTimer *>(timer) scheduleInModes:sim::runLoopModes([mode UTF8String])];
}

NSString *currentMode(id, SEL) {
    return sim::runLoopMode() == sim::kTrackingMode ? @"UITrackingRunLoopMode" : NSDefaultRunLoopMode;
}

} // namespace

// A delayed perform; not a timer that anyone can see.
@interface SimDelayedPerform : NSObject {
@public
    id target;
    SEL action;
    id argument;
    Clock::TaskId task;
}
@end

@implementation SimDelayedPerform
- (void)dealloc {
    [target release];
    [argument release];
    [super dealloc];
}
@end

namespace {

std::vector<SimDelayedPerform *> &performs() {
    static auto &waiting = *new std::vector<SimDelayedPerform *>;
    return waiting;
}

void forget(SimDelayedPerform *perform) {
    std::erase(performs(), perform);
    [perform autorelease];
}

void performInModes(id self, SEL, SEL action, id argument, NSTimeInterval delay, NSArray *names) {
    sim::RunLoopModes modes = 0;
    for (NSString *name in names) modes |= sim::runLoopModes([name UTF8String]);
    if (!modes) return;
    auto *perform = [SimDelayedPerform new];
    perform->target = [self retain];
    perform->action = action;
    perform->argument = [argument retain];
    performs().push_back(perform);
    Nanos due = Clock::shared().now() + sim::fromSeconds(delay);
    perform->task = sim::scheduleInModes(due, modes, [perform] {
        forget(perform);
        call(perform->target, perform->action, perform->argument);
    });
}

void performAfterDelay(id self, SEL command, SEL action, id argument, NSTimeInterval delay) {
    performInModes(self, command, action, argument, delay, [NSArray arrayWithObject:NSDefaultRunLoopMode]);
}

void cancelWhere(auto &&matches) {
    for (auto *perform : std::vector(performs())) {
        if (!matches(perform)) continue;
        sim::cancelInModes(perform->task);
        forget(perform);
    }
}

void cancelAllPerforms(id, SEL, id target) {
    cancelWhere([=](SimDelayedPerform *perform) { return perform->target == target; });
}

void cancelPerform(id, SEL, id target, SEL action, id argument) {
    cancelWhere([=](SimDelayedPerform *perform) {
        return perform->target == target && sel_isEqual(perform->action, action) &&
               (perform->argument == argument || [perform->argument isEqual:argument]);
    });
}

} // namespace

namespace sim {

void installTimers() {
    Class timers = object_getClass([NSTimer class]);
    replaceMethod(timers, @selector(timerWithTimeInterval:target:selector:userInfo:repeats:),
                  reinterpret_cast<IMP>(unscheduledTimer));
    replaceMethod(timers, @selector(scheduledTimerWithTimeInterval:target:selector:userInfo:repeats:),
                  reinterpret_cast<IMP>(scheduledTimer));
    replaceMethod([NSTimer class], @selector(initWithFireDate:interval:target:selector:userInfo:repeats:),
                  reinterpret_cast<IMP>(initTimer));
    replaceMethod([NSRunLoop class], @selector(addTimer:forMode:), reinterpret_cast<IMP>(addTimer));
    replaceMethod([NSRunLoop class], @selector(currentMode), reinterpret_cast<IMP>(currentMode));
    Class objects = object_getClass([NSObject class]);
    // Instances, and classes, which answer what instances of the root class do.
    for (Class target : {[NSObject class], objects}) {
        replaceMethod(target, @selector(performSelector:withObject:afterDelay:),
                      reinterpret_cast<IMP>(performAfterDelay));
        replaceMethod(target, @selector(performSelector:withObject:afterDelay:inModes:),
                      reinterpret_cast<IMP>(performInModes));
    }
    replaceMethod(objects, @selector(cancelPreviousPerformRequestsWithTarget:),
                  reinterpret_cast<IMP>(cancelAllPerforms));
    replaceMethod(objects, @selector(cancelPreviousPerformRequestsWithTarget:selector:object:),
                  reinterpret_cast<IMP>(cancelPerform));
    Clock::shared().setGuard([](const Clock::Task &task) {
        @autoreleasepool {
            task();
        }
    });
}

size_t scheduledTimers() { return scheduled().size(); }

std::vector<TimerDescription> describeTimers() {
    std::vector<TimerDescription> result;
    for (const SimTimer *timer : scheduled())
        result.push_back({object_getClassName(timer->target), sel_getName(timer->action),
                          toSeconds(timer->step), timer->due});
    std::ranges::sort(result, {}, [](const TimerDescription &timer) {
        return std::tie(timer.due, timer.target, timer.selector, timer.interval);
    });
    return result;
}

} // namespace sim

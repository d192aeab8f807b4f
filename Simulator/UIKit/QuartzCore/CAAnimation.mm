#include "LayerState.h"

#include "CAAnimation+Further.h"
#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Objc/Ownership.h"
#include "Runtime/Process/Events.hpp"

#include <UIKit/UIColor.h>

#include <cmath>

NSString *const kCAMediaTimingFunctionLinear = @"linear";
NSString *const kCAMediaTimingFunctionEaseIn = @"easeIn";
NSString *const kCAMediaTimingFunctionEaseOut = @"easeOut";
NSString *const kCAMediaTimingFunctionEaseInEaseOut = @"easeInEaseOut";
NSString *const kCAFillModeForwards = @"forwards";
NSString *const kCAFillModeBackwards = @"backwards";
NSString *const kCAFillModeBoth = @"both";
NSString *const kCAFillModeRemoved = @"removed";

CFTimeInterval CACurrentMediaTime(void) { return sim::toSeconds(sim::Clock::shared().now()); }

namespace {

struct AnimationState {
    CFTimeInterval duration = 0, beginTime = 0;
    float repeatCount = 0;
    BOOL autoreverses = NO, removedOnCompletion = YES;
    NSString *fillMode = nil, *keyPath = nil;
    CAMediaTimingFunction *timing = nil;
    id delegate = nil, from = nil, to = nil;
};

AnimationState &state(CAAnimation *animation) {
    return sim::lazyState<AnimationState>(animation->_animationState);
}

void retain(id &slot, id value) { sim::retainInto(slot, value); }

sim::TimingCurve curve(CAMediaTimingFunction *function) {
    return function ? *static_cast<sim::TimingCurve *>(function->_timingState) : sim::TimingCurve::linear();
}

sim::FillMode fillMode(NSString *name) {
    if ([name isEqual:kCAFillModeForwards]) return sim::FillMode::forwards;
    if ([name isEqual:kCAFillModeBackwards]) return sim::FillMode::backwards;
    if ([name isEqual:kCAFillModeBoth]) return sim::FillMode::both;
    return sim::FillMode::removed;
}

// Boxed numbers, lists of numbers and colours.
sim::AnimatedValue unboxed(id value) {
    if ([value isKindOfClass:[NSNumber class]]) return [value doubleValue];
    if ([value isKindOfClass:[NSArray class]]) {
        std::vector<double> numbers;
        for (NSNumber *number in static_cast<NSArray *>(value)) numbers.push_back([number doubleValue]);
        return numbers;
    }
    if ([value isKindOfClass:[SimCGColor class]])
        return sim::flatColor(static_cast<SimCGColor *>(static_cast<NSObject *>(value))->paint);
    if (value)
        sim::recordWarning(std::string("animation value of an unknown class: ") + object_getClassName(value));
    return {};
}

} // namespace

@implementation CAMediaTimingFunction

+ (instancetype)functionWithName:(NSString *)name {
    struct {
        NSString *name;
        sim::TimingCurve curve;
    } const known[] = {{kCAMediaTimingFunctionLinear, sim::TimingCurve::linear()},
                       {kCAMediaTimingFunctionEaseIn, sim::TimingCurve::easeIn()},
                       {kCAMediaTimingFunctionEaseOut, sim::TimingCurve::easeOut()},
                       {kCAMediaTimingFunctionEaseInEaseOut, sim::TimingCurve::easeInOut()}};
    for (const auto &entry : known) {
        if (![entry.name isEqual:name]) continue;
        CAMediaTimingFunction *function = [[self new] autorelease];
        function->_timingState = new sim::TimingCurve(entry.curve);
        return function;
    }
    return nil;
}

- (void)dealloc {
    delete static_cast<sim::TimingCurve *>(_timingState);
    [super dealloc];
}

@end

@implementation CAAnimation

+ (instancetype)animation {
    return [[self new] autorelease];
}

- (void)dealloc {
    auto &mine = state(self);
    for (id object : {static_cast<id>(mine.fillMode), static_cast<id>(mine.keyPath),
                      static_cast<id>(mine.timing), mine.delegate, mine.from, mine.to})
        [object release];
    delete &mine;
    [super dealloc];
}

- (id)copyWithZone:(NSZone *)zone {
    CAAnimation *copy = [[[self class] allocWithZone:zone] init];
    auto &theirs = state(copy) = state(self);
    for (id object : {static_cast<id>(theirs.fillMode), static_cast<id>(theirs.keyPath),
                      static_cast<id>(theirs.timing), theirs.delegate, theirs.from, theirs.to})
        [object retain];
    return copy;
}

- (CFTimeInterval)duration {
    return state(self).duration;
}
- (void)setDuration:(CFTimeInterval)duration {
    state(self).duration = duration;
}
- (CFTimeInterval)beginTime {
    return state(self).beginTime;
}
- (void)setBeginTime:(CFTimeInterval)time {
    state(self).beginTime = time;
}
- (float)repeatCount {
    return state(self).repeatCount;
}
- (void)setRepeatCount:(float)count {
    state(self).repeatCount = count;
}
- (BOOL)autoreverses {
    return state(self).autoreverses;
}
- (void)setAutoreverses:(BOOL)autoreverses {
    state(self).autoreverses = autoreverses;
}
- (NSString *)fillMode {
    return state(self).fillMode ? state(self).fillMode : kCAFillModeRemoved;
}
- (void)setFillMode:(NSString *)mode {
    sim::copyInto(state(self).fillMode, mode);
}
- (BOOL)isRemovedOnCompletion {
    return state(self).removedOnCompletion;
}
- (void)setRemovedOnCompletion:(BOOL)removed {
    state(self).removedOnCompletion = removed;
}
- (CAMediaTimingFunction *)timingFunction {
    return state(self).timing;
}
- (void)setTimingFunction:(CAMediaTimingFunction *)function {
    sim::retainInto(state(self).timing, function);
}
- (id)delegate {
    return state(self).delegate;
}
- (void)setDelegate:(id)delegate {
    retain(state(self).delegate, delegate);
}

@end

@implementation CAPropertyAnimation

+ (instancetype)animationWithKeyPath:(NSString *)path {
    CAPropertyAnimation *animation = [[self new] autorelease];
    [animation setKeyPath:path];
    return animation;
}

- (NSString *)keyPath {
    return state(self).keyPath;
}
- (void)setKeyPath:(NSString *)path {
    sim::copyInto(state(self).keyPath, path);
}

@end

@implementation CABasicAnimation

- (id)fromValue {
    return state(self).from;
}
- (void)setFromValue:(id)value {
    retain(state(self).from, value);
}
- (id)toValue {
    return state(self).to;
}
- (void)setToValue:(id)value {
    retain(state(self).to, value);
}

@end

namespace sim {

void addExplicitAnimation(CALayer *layer, CAAnimation *animation, const std::string &key) {
    if (![animation isKindOfClass:[CABasicAnimation class]]) return;
    constexpr double kDefaultDuration = 0.25;
    CAAnimation *copy = [animation copy];
    const auto &settings = ::state(copy);
    Clock &clock = Clock::shared();
    addAnimation(
        layer,
        {.key = key,
         .keyPath = settings.keyPath ? [settings.keyPath UTF8String] : "",
         .from = unboxed(settings.from),
         .to = unboxed(settings.to),
         .timing = {.begin = settings.beginTime > 0 ? fromSeconds(settings.beginTime) : clock.now(),
                    .duration = fromSeconds(settings.duration > 0 ? settings.duration : kDefaultDuration),
                    .repeatCount = settings.repeatCount > 0 ? settings.repeatCount : 1,
                    .autoreverses = static_cast<bool>(settings.autoreverses),
                    .fill = fillMode(settings.fillMode),
                    .curve = curve(settings.timing)},
         .removedOnCompletion = static_cast<bool>(settings.removedOnCompletion),
         .object = copy});
}

} // namespace sim

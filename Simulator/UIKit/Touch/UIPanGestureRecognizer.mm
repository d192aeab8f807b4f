#include "GestureArbiter.h"
#include "PanState.h"

#include "Runtime/Objc/LazyState.hpp"
#include "UIGestureRecognizer+Further.h"
#include "UIGestureRecognizerSubclass+Further.h"
#include "UIKit/UIKit+Further.h"

#include <cmath>

namespace {

// A pan begins when the finger is more than this far from where it came down. What it takes to begin does not
// count as translation, so that what follows the finger does not jump; inferred.
constexpr CGFloat kThreshold = 10;

// All lengths are points of the screen.
struct PanState {
    NSUInteger least = 1, most = NSUIntegerMax;
    CGPoint last = {0, 0};      // the middle of the fingers
    CGPoint travelled = {0, 0}; // the way of that middle, without its jumps as fingers come and go
    CGPoint base = {0, 0};      // what of the way is not translation
    sim::VelocityTracker velocity;
};

PanState &panState(UIPanGestureRecognizer *recognizer) {
    return sim::lazyState<PanState>(recognizer->_panState);
}

UIWindow *window(UIGestureRecognizer *recognizer) { return sim::state(recognizer).window; }

} // namespace

@implementation UIPanGestureRecognizer

- (void)dealloc {
    delete &panState(self);
    [super dealloc];
}

- (NSUInteger)minimumNumberOfTouches {
    return panState(self).least;
}
- (void)setMinimumNumberOfTouches:(NSUInteger)touches {
    panState(self).least = touches;
}

- (NSUInteger)maximumNumberOfTouches {
    return panState(self).most;
}
- (void)setMaximumNumberOfTouches:(NSUInteger)touches {
    panState(self).most = touches;
}

- (CGPoint)translationInView:(UIView *)view {
    const auto &mine = panState(self);
    CGPoint way = {mine.travelled.x - mine.base.x, mine.travelled.y - mine.base.y};
    return sim::vectorFromScreen(way, window(self), view);
}

- (void)setTranslation:(CGPoint)translation inView:(UIView *)view {
    auto &mine = panState(self);
    CGPoint way = sim::vectorToScreen(translation, window(self), view);
    mine.base = {mine.travelled.x - way.x, mine.travelled.y - way.y};
}

- (CGPoint)velocityInView:(UIView *)view {
    auto speed = panState(self).velocity.at(sim::Clock::shared().now());
    return sim::vectorFromScreen({speed.x, speed.y}, window(self), view);
}

- (CGPoint)movementThatCounts:(CGPoint)movement {
    return movement;
}

- (void)touchesBegan:(NSSet *)touches withEvent:(UIEvent *)event {
    auto &mine = panState(self);
    size_t down = sim::touchesDown(self);
    if (down > mine.most) {
        if (!sim::isActive(self)) return [self setState:UIGestureRecognizerStateFailed];
        return [self ignoreTouch:[touches anyObject] forEvent:event];
    }
    mine.last = sim::state(self).location;
    if (down > 1) return;
    mine.travelled = mine.base = CGPointZero;
    mine.velocity.start(sim::Clock::shared().now(), {});
}

- (void)touchesMoved:(NSSet *)touches withEvent:(UIEvent *)event {
    auto &mine = panState(self);
    CGPoint location = sim::state(self).location;
    mine.travelled.x += location.x - mine.last.x;
    mine.travelled.y += location.y - mine.last.y;
    mine.last = location;
    mine.velocity.add(sim::Clock::shared().now(), {mine.travelled.x, mine.travelled.y});
    if (sim::isActive(self)) return [self setState:UIGestureRecognizerStateChanged];
    bool wantsToBegin = sim::state(self).wanted != UIGestureRecognizerStatePossible;
    if (wantsToBegin || sim::touchesDown(self) < mine.least) return;
    CGPoint counted = [self movementThatCounts:mine.travelled];
    CGFloat length = std::hypot(counted.x, counted.y);
    if (length <= kThreshold) return;
    mine.base = {counted.x * kThreshold / length, counted.y * kThreshold / length};
    [self setState:UIGestureRecognizerStateBegan];
}

- (void)touchesEnded:(NSSet *)touches withEvent:(UIEvent *)event {
    size_t down = sim::touchesDown(self);
    if (down > 0 && (!sim::isActive(self) || down >= panState(self).least)) {
        panState(self).last = sim::state(self).location;
        return;
    }
    [self setState:sim::isActive(self) ? UIGestureRecognizerStateEnded : UIGestureRecognizerStateFailed];
}

- (void)touchesCancelled:(NSSet *)touches withEvent:(UIEvent *)event {
    [self setState:sim::isActive(self) ? UIGestureRecognizerStateCancelled : UIGestureRecognizerStateFailed];
}

@end

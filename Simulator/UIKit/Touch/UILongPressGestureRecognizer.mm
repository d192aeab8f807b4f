#include "GestureArbiter.h"

#include "Runtime/Objc/LazyState.hpp"
#include "UIGestureRecognizerSubclass+Further.h"
#include "UIKit/Views/UIResponder+Further.h"

namespace {

struct LongPressState {
    CFTimeInterval duration = 0.5;
    CGFloat allowableMovement = 10;
    CGPoint start = {0, 0};
};

LongPressState &pressState(UILongPressGestureRecognizer *recognizer) {
    return sim::lazyState<LongPressState>(recognizer->_longPressState);
}

} // namespace

@implementation UILongPressGestureRecognizer

- (void)dealloc {
    delete &pressState(self);
    [super dealloc];
}

- (CFTimeInterval)minimumPressDuration {
    return pressState(self).duration;
}
- (void)setMinimumPressDuration:(CFTimeInterval)duration {
    pressState(self).duration = duration;
}

- (CGFloat)allowableMovement {
    return pressState(self).allowableMovement;
}
- (void)setAllowableMovement:(CGFloat)movement {
    pressState(self).allowableMovement = movement;
}

- (void)touchesBegan:(NSSet *)touches withEvent:(UIEvent *)event {
    auto &mine = pressState(self);
    if (sim::touchesDown(self) > 1) {
        if (!sim::isActive(self)) return [self setState:UIGestureRecognizerStateFailed];
        return [self ignoreTouch:[touches anyObject] forEvent:event];
    }
    mine.start = sim::state(self).location;
    if (mine.duration <= 0) return [self setState:UIGestureRecognizerStateBegan];
    UILongPressGestureRecognizer *me = self;
    sim::setTimer(self, mine.duration, [me] { [me setState:UIGestureRecognizerStateBegan]; });
}

- (void)touchesMoved:(NSSet *)touches withEvent:(UIEvent *)event {
    auto &mine = pressState(self);
    if (sim::isActive(self)) return [self setState:UIGestureRecognizerStateChanged];
    if (sim::distance(sim::state(self).location, mine.start) > mine.allowableMovement)
        [self setState:UIGestureRecognizerStateFailed];
}

- (void)touchesEnded:(NSSet *)touches withEvent:(UIEvent *)event {
    [self setState:sim::isActive(self) ? UIGestureRecognizerStateEnded : UIGestureRecognizerStateFailed];
}

- (void)touchesCancelled:(NSSet *)touches withEvent:(UIEvent *)event {
    [self setState:sim::isActive(self) ? UIGestureRecognizerStateCancelled : UIGestureRecognizerStateFailed];
}

@end

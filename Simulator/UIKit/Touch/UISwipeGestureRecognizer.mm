#include "GestureArbiter.h"

#include "Runtime/Objc/LazyState.hpp"
#include "UIGestureRecognizer+Further.h"
#include "UIGestureRecognizerSubclass+Further.h"
#include "UIKit/Views/UIResponder+Further.h"

#include <cmath>

namespace {

// A swipe goes so far one way within so long, and strays no farther aside. Inferred.
constexpr CGFloat kLeastWay = 50;
constexpr CGFloat kMostAside = 50;
constexpr double kLongest = 0.5;

struct SwipeState {
    NSUInteger touchesRequired = 1;
    UISwipeGestureRecognizerDirection direction = UISwipeGestureRecognizerDirectionRight;
    CGPoint start = {0, 0};
};

SwipeState &swipeState(UISwipeGestureRecognizer *recognizer) {
    return sim::lazyState<SwipeState>(recognizer->_swipeState);
}

struct Course {
    UISwipeGestureRecognizerDirection direction;
    CGFloat along, aside;
};

} // namespace

@implementation UISwipeGestureRecognizer

- (void)dealloc {
    delete &swipeState(self);
    [super dealloc];
}

- (NSUInteger)numberOfTouchesRequired {
    return swipeState(self).touchesRequired;
}
- (void)setNumberOfTouchesRequired:(NSUInteger)touches {
    swipeState(self).touchesRequired = touches;
}

- (UISwipeGestureRecognizerDirection)direction {
    return swipeState(self).direction;
}
- (void)setDirection:(UISwipeGestureRecognizerDirection)direction {
    swipeState(self).direction = direction;
}

- (void)touchesBegan:(NSSet *)touches withEvent:(UIEvent *)event {
    size_t down = sim::touchesDown(self);
    swipeState(self).start = sim::state(self).location;
    if (down > swipeState(self).touchesRequired) return [self setState:UIGestureRecognizerStateFailed];
    if (down > 1) return;
    UISwipeGestureRecognizer *me = self;
    sim::setTimer(self, kLongest, [me] { [me setState:UIGestureRecognizerStateFailed]; });
}

- (void)touchesMoved:(NSSet *)touches withEvent:(UIEvent *)event {
    const auto &mine = swipeState(self);
    CGPoint location = sim::state(self).location;
    CGFloat dx = location.x - mine.start.x, dy = location.y - mine.start.y;
    const Course courses[] = {{UISwipeGestureRecognizerDirectionRight, dx, std::fabs(dy)},
                              {UISwipeGestureRecognizerDirectionLeft, -dx, std::fabs(dy)},
                              {UISwipeGestureRecognizerDirectionDown, dy, std::fabs(dx)},
                              {UISwipeGestureRecognizerDirectionUp, -dy, std::fabs(dx)}};
    bool possible = false;
    for (const auto &[direction, along, aside] : courses) {
        if (!(mine.direction & direction) || aside > kMostAside) continue;
        possible = true;
        if (along >= kLeastWay && sim::touchesDown(self) == mine.touchesRequired)
            return [self setState:UIGestureRecognizerStateRecognized];
    }
    if (!possible) [self setState:UIGestureRecognizerStateFailed];
}

- (void)touchesEnded:(NSSet *)touches withEvent:(UIEvent *)event {
    [self setState:UIGestureRecognizerStateFailed];
}

- (void)touchesCancelled:(NSSet *)touches withEvent:(UIEvent *)event {
    [self setState:UIGestureRecognizerStateFailed];
}

@end

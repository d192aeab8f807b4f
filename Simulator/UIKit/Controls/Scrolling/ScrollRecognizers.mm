#include "ScrollRecognizers.h"

#include "ScrollMotion.h"
#include "UIKit/Touch/GestureArbiter.h"
#include "UIKit/Touch/PanState.h"
#include "UIKit/UIKit+Further.h"
#include "UIScrollView+Further.h"

#include <cmath>

namespace {

// How long a touch is held back from the content.
constexpr double kDelay = 0.15;

UIScrollView *scrollView(UIGestureRecognizer *recognizer) {
    return static_cast<UIScrollView *>([recognizer view]);
}

} // namespace

@implementation UIScrollViewPanGestureRecognizer

- (void)touchesBegan:(NSSet *)touches withEvent:(UIEvent *)event {
    sim::setTracking(scrollView(self), true);
    bool caught = sim::touchesDown(self) == 1 && sim::stopMotion(scrollView(self));
    [super touchesBegan:touches withEvent:event];
    if (caught) [self setState:UIGestureRecognizerStateBegan];
}

// Where the content scrolls along one axis only, a movement mostly along the other is not for it; inferred.
- (CGPoint)movementThatCounts:(CGPoint)movement {
    UIScrollView *view = scrollView(self);
    UIWindow *window = sim::state(self).window;
    bool across = sim::canScroll(view, 0), down = sim::canScroll(view, 1);
    if (across && down) return movement;
    CGPoint inView = sim::vectorFromScreen(movement, window, view);
    bool mostlyAcross = std::fabs(inView.x) >= std::fabs(inView.y);
    CGPoint counted = {across && mostlyAcross ? inView.x : 0, down && !mostlyAcross ? inView.y : 0};
    return sim::vectorToScreen(counted, window, view);
}

- (void)reset {
    sim::setTracking(scrollView(self), false);
    [super reset];
}

@end

@implementation UIScrollViewDelayedTouchesBeganGestureRecognizer

- (instancetype)initWithTarget:(id)target action:(SEL)action {
    if (!(self = [super initWithTarget:target action:action])) return nil;
    [self setDelaysTouchesBegan:YES];
    [self setCancelsTouchesInView:NO];
    return self;
}

- (void)touchesBegan:(NSSet *)touches withEvent:(UIEvent *)event {
    UIScrollView *view = scrollView(self);
    bool scrolls = sim::canScroll(view, 0) || sim::canScroll(view, 1);
    if (!scrolls || ![view delaysContentTouches]) return [self setState:UIGestureRecognizerStateFailed];
    if (sim::touchesDown(self) > 1) return;
    UIGestureRecognizer *me = self;
    sim::setTimer(self, kDelay, [me] { [me setState:UIGestureRecognizerStateFailed]; });
}

- (void)touchesEnded:(NSSet *)touches withEvent:(UIEvent *)event {
    [self setState:UIGestureRecognizerStateFailed];
}

- (void)touchesCancelled:(NSSet *)touches withEvent:(UIEvent *)event {
    [self setState:UIGestureRecognizerStateFailed];
}

@end

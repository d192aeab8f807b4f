#include "GestureArbiter.h"

#include "UIGestureRecognizer+Further.h"
#include "UIGestureRecognizerSubclass+Further.h"
#include "UIKit/Views/UIResponder+Further.h"
#include "UIKit/Views/ViewState.h"

#include <algorithm>

using sim::state;

@implementation UIGestureRecognizer

- (instancetype)init {
    return [self initWithTarget:nil action:nullptr];
}

- (instancetype)initWithTarget:(id)target action:(SEL)action {
    if ((self = [super init]) && target && action) state(self).targets.push_back({target, action});
    return self;
}

- (void)dealloc {
    auto &mine = state(self);
    for (UIGestureRecognizer *other : mine.requirements) std::erase(state(other).dependents, self);
    for (UIGestureRecognizer *other : mine.dependents) std::erase(state(other).requirements, self);
    delete &mine;
    [super dealloc];
}

- (void)addTarget:(id)target action:(SEL)action {
    if (!target || !action) return;
    [self removeTarget:target action:action];
    state(self).targets.push_back({target, action});
}

- (void)removeTarget:(id)target action:(SEL)action {
    std::erase_if(state(self).targets, [=](const auto &row) {
        return (!target || row.target == target) && (!action || sel_isEqual(row.action, action));
    });
}

- (UIGestureRecognizerState)state {
    return state(self).state;
}
- (void)setState:(UIGestureRecognizerState)next {
    sim::gestureTurn([=] { sim::requestState(self, next); });
}

- (id<UIGestureRecognizerDelegate>)delegate {
    return state(self).delegate;
}
- (void)setDelegate:(id<UIGestureRecognizerDelegate>)delegate {
    state(self).delegate = delegate;
}

- (BOOL)isEnabled {
    return state(self).enabled;
}
- (void)setEnabled:(BOOL)enabled {
    state(self).enabled = enabled;
    if (!enabled) sim::cancelGesture(self);
}

- (UIView *)view {
    return state(self).view;
}

- (BOOL)cancelsTouchesInView {
    return state(self).cancelsTouches;
}
- (void)setCancelsTouchesInView:(BOOL)cancels {
    state(self).cancelsTouches = cancels;
}

- (BOOL)delaysTouchesBegan {
    return state(self).delaysBegan;
}
- (void)setDelaysTouchesBegan:(BOOL)delays {
    state(self).delaysBegan = delays;
}

- (BOOL)delaysTouchesEnded {
    return state(self).delaysEnded;
}
- (void)setDelaysTouchesEnded:(BOOL)delays {
    state(self).delaysEnded = delays;
}

- (void)requireGestureRecognizerToFail:(UIGestureRecognizer *)other {
    auto &list = state(self).requirements;
    if (!other || other == self || std::find(list.begin(), list.end(), other) != list.end()) return;
    list.push_back(other);
    state(other).dependents.push_back(self);
}

- (CGPoint)locationInView:(UIView *)view {
    UIWindow *window = state(self).window ? state(self).window : [state(self).view window];
    return sim::fromScreen(state(self).location, window, view);
}

- (NSUInteger)numberOfTouches {
    return sim::touchesDown(self);
}

- (void)ignoreTouch:(UITouch *)touch forEvent:(UIEvent *)event {
    sim::dropTouch(self, touch);
}

- (void)reset {
}

- (BOOL)canPreventGestureRecognizer:(UIGestureRecognizer *)other {
    return YES;
}
- (BOOL)canBePreventedByGestureRecognizer:(UIGestureRecognizer *)other {
    return YES;
}

- (void)touchesBegan:(NSSet *)touches withEvent:(UIEvent *)event {
}
- (void)touchesMoved:(NSSet *)touches withEvent:(UIEvent *)event {
}
- (void)touchesEnded:(NSSet *)touches withEvent:(UIEvent *)event {
}
- (void)touchesCancelled:(NSSet *)touches withEvent:(UIEvent *)event {
}

@end

@implementation UIView (UIViewGestureRecognition)
- (BOOL)gestureRecognizerShouldBegin:(UIGestureRecognizer *)recognizer {
    return YES;
}
@end

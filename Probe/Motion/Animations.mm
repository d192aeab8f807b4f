// When an animation ends, and where views are meanwhile.
#include "Probe/Motion/Motion.h"
#include "Probe/PendixProbe.h"

namespace probe {

namespace {

constexpr NSTimeInterval kHalf = 0.5;
constexpr UIViewAnimationOptions kLinear = UIViewAnimationOptionCurveLinear;

// Seconds until the completion of an animation of half a second.
void completionTime() {
    UIView *view = newStage();
    CFTimeInterval start = CACurrentMediaTime();
    [UIView animateWithDuration:kHalf
        animations:^{ view.alpha = 0.5; }
        completion:^(BOOL) {
            answerLater("animation.completion.time", number(CACurrentMediaTime() - start));
        }];
}

// Whether the completion has come before the call returns, where nothing can be seen to move.
void outsideEveryWindow() {
    UIView *view = [[[UIView alloc] initWithFrame:CGRectZero] autorelease];
    __block BOOL came = NO;
    [UIView animateWithDuration:kHalf animations:^{ view.alpha = 0.5; } completion:^(BOOL) { came = YES; }];
    BOOL cameAtOnce = came;
    after(0.1, ^{ answerLater("animation.windowless.at_once", flag(cameAtOnce || came)); });
}

void withoutChange() {
    CFTimeInterval start = CACurrentMediaTime();
    UIView *view = newStage();
    [UIView animateWithDuration:kHalf
        animations:^{ view.alpha = view.alpha; }
        completion:^(BOOL) {
            answerLater("animation.unchanged.time", number(CACurrentMediaTime() - start));
        }];
}

// Which place of a moving view finds it: "there" where it is going, "here" where it is seen, "both" or
// "neither".
NSString *whereFound(UIView *container, UIView *moving) {
    CALayer *seen = [moving.layer presentationLayer];
    BOOL here = [container hitTest:seen.position withEvent:nil] == moving;
    BOOL there = [container hitTest:moving.center withEvent:nil] == moving;
    if (here) return there ? @"both" : @"here";
    return there ? @"there" : @"neither";
}

void touchesWhileMoving(const char *name, UIViewAnimationOptions options) {
    UIView *container = newStage();
    container.frame = CGRectMake(0, 0, 300, 40);
    UIView *moving = [[[UIView alloc] initWithFrame:CGRectMake(0, 0, 20, 20)] autorelease];
    [container addSubview:moving];
    [UIView animateWithDuration:1
                          delay:0
                        options:kLinear | options
                     animations:^{ moving.center = CGPointMake(210, 10); }
                     completion:nil];
    after(kHalf, ^{ answerLater(name, whereFound(container, moving)); });
}

void touchesWithoutOption() { touchesWhileMoving("animation.touches.found", 0); }

void touchesWithOption() {
    touchesWhileMoving("animation.touches.found_with_option", UIViewAnimationOptionAllowUserInteraction);
}

// Whether `view` takes touches in its middle half a second after `animate` was called.
void touchesDuring(const char *name, UIView *container, UIView *view, void (^animate)(void)) {
    container.frame = CGRectMake(0, 0, 300, 40);
    animate();
    CGPoint middle = CGPointMake(view.bounds.size.width / 2, view.bounds.size.height / 2);
    after(kHalf, ^{
        CGPoint place = [view convertPoint:middle toView:container];
        answerLater(name, flag([container hitTest:place withEvent:nil] == view));
    });
}

UIView *newPart(UIView *container) {
    UIView *view = [[[UIView alloc] initWithFrame:CGRectMake(0, 0, 20, 20)] autorelease];
    [container addSubview:view];
    return view;
}

void animateFor(NSTimeInterval duration, NSTimeInterval delay, UIViewAnimationOptions options,
                void (^animations)(void)) {
    [UIView animateWithDuration:duration delay:delay options:options animations:animations completion:nil];
}

void touchesWhileFading() {
    UIView *container = newStage(), *view = newPart(container);
    view.alpha = 0;
    touchesDuring("animation.touches.fading", container, view,
                  ^{ animateFor(1, 0, kLinear, ^{ view.alpha = 1; }); });
}

void touchesWhileDelayed() {
    UIView *container = newStage(), *view = newPart(container);
    touchesDuring("animation.touches.delayed", container, view,
                  ^{ animateFor(1, 2, kLinear, ^{ view.alpha = 0.5; }); });
}

void touchesOfHeldView() {
    UIView *container = newStage(), *moving = newPart(container), *held = newPart(moving);
    touchesDuring("animation.touches.held_view", container, held,
                  ^{ animateFor(1, 0, kLinear, ^{ moving.center = CGPointMake(210, 10); }); });
}

// A block that allows touches holds one that does not.
void touchesOfInnerBlock() {
    UIView *container = newStage(), *view = newPart(container);
    touchesDuring("animation.touches.inner_block", container, view, ^{
        animateFor(1, 0, UIViewAnimationOptionAllowUserInteraction,
                   ^{ animateFor(1, 0, kLinear, ^{ view.alpha = 0.5; }); });
    });
}

} // namespace

std::span<const Motion> animationMotions() {
    static const Motion all[] = {{"animation.completion.time", completionTime},
                                 {"animation.windowless.at_once", outsideEveryWindow},
                                 {"animation.unchanged.time", withoutChange},
                                 {"animation.touches.found", touchesWithoutOption},
                                 {"animation.touches.found_with_option", touchesWithOption},
                                 {"animation.touches.fading", touchesWhileFading},
                                 {"animation.touches.delayed", touchesWhileDelayed},
                                 {"animation.touches.held_view", touchesOfHeldView},
                                 {"animation.touches.inner_block", touchesOfInnerBlock}};
    return all;
}

} // namespace probe

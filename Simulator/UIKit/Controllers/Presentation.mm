// Controllers that cover others: slid in over the whole window, and out again.
#include "ControllerState.h"

#include "Runtime/Process/Events.hpp"
#include "UIKit/UIKit+Further.h"
#include "UIKit/Views/ViewState.h"
#include "UIViewController+Further.h"

#include <UIKit/UIAccessibility.h>
#include <UIKit/UIWindow.h>

#include <objc/blocks_runtime.h>

using sim::state;

namespace {

constexpr double kSlideSeconds = 0.4;

// The controller that covers and is covered: the topmost parent, for a child does not fill the window.
UIViewController *outermost(UIViewController *controller) {
    while (state(controller).parent) controller = state(controller).parent;
    return controller;
}

CGRect below(CGRect frame) { return CGRectOffset(frame, 0, frame.size.height); }

void callOnce(void (^completion)(void)) {
    if (!completion) return;
    completion();
    Block_release(completion);
}

// Runs the slide, or jumps to its end. Touches are ignored on the way.
void slide(UIView *view, CGRect frame, bool animated, UIViewAnimationOptions curve, void (^done)(void)) {
    if (!animated) {
        [view setFrame:frame];
        return done();
    }
    UIWindow *window = [view window];
    [window setUserInteractionEnabled:NO];
    [UIView animateWithDuration:kSlideSeconds
        delay:0
        options:curve
        animations:^{ [view setFrame:frame]; }
        completion:^(BOOL) {
            [window setUserInteractionEnabled:YES];
            done();
        }];
}

void refuse(UIViewController *presenting, UIViewController *presented) {
    sim::recordWarning(std::string("an attempt to present ") + object_getClassName(presented) + " on " +
                       object_getClassName(presenting) + " came to nothing");
}

} // namespace

@implementation UIViewController (UIModalPresentation)

- (UIViewController *)presentedViewController {
    return state(self).presented;
}

// That of the outermost parent, for a child.
- (UIViewController *)presentingViewController {
    return state(outermost(self)).presenting;
}

- (UIModalPresentationStyle)modalPresentationStyle {
    return state(self).presentationStyle;
}
- (void)setModalPresentationStyle:(UIModalPresentationStyle)style {
    state(self).presentationStyle = style;
}

- (void)presentViewController:(UIViewController *)controller
                     animated:(BOOL)animated
                   completion:(void (^)(void))completion {
    UIViewController *base = outermost(self);
    UIWindow *window = [[base view] window];
    // As on a phone, a controller presents one other at a time, and none while it is off screen itself.
    if (!controller || state(base).presented || state(controller).presenting || !window)
        return controller ? refuse(base, controller) : void();
    state(base).presented = [controller retain];
    state(controller).presenting = base;
    if (completion) completion = Block_copy(completion);

    UIView *view = [controller view], *covered = [base view];
    CGRect frame = [covered frame];
    [view setFrame:animated ? below(frame) : frame];
    sim::beginAppearance(base, false, animated);
    sim::beginAppearance(controller, true, animated);
    [window addSubview:view];
    [view layoutIfNeeded];
    slide(view, frame, animated, UIViewAnimationOptionCurveEaseOut, ^{
        [covered removeFromSuperview];
        sim::endAppearance(base, animated);
        sim::endAppearance(controller, animated);
        callOnce(completion);
        UIAccessibilityPostNotification(UIAccessibilityScreenChangedNotification, nil);
    });
}

// What the controller presented, else itself.
- (void)dismissViewControllerAnimated:(BOOL)animated completion:(void (^)(void))completion {
    UIViewController *base = outermost(self);
    if (!state(base).presented) base = state(base).presenting;
    if (!base) return;
    UIViewController *controller = state(base).presented;
    UIView *view = [controller view], *covered = [base view];
    UIWindow *window = [view window];
    if (!window) return;
    if (completion) completion = Block_copy(completion);

    [covered setFrame:[view frame]];
    sim::beginAppearance(controller, false, animated);
    [window insertSubview:covered belowSubview:view];
    sim::beginAppearance(base, true, animated);
    [covered layoutIfNeeded];
    slide(view, below([view frame]), animated, UIViewAnimationOptionCurveEaseIn, ^{
        [view removeFromSuperview];
        state(controller).presenting = nil;
        state(base).presented = nil;
        sim::endAppearance(controller, animated);
        sim::endAppearance(base, animated);
        callOnce(completion);
        UIAccessibilityPostNotification(UIAccessibilityScreenChangedNotification, nil);
        [controller autorelease];
    });
}

@end

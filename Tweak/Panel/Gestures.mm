// Opening an application, and dragging one off the strip.
#include "Tweak/Core/AnimationDuration.h"
#include "Tweak/Core/PanelViews.h"
#include "Tweak/Core/State.h"
#include "Tweak/Panel/ItemState.h"
#include "Tweak/Panel/NewUIScrollView.h"
#include "Tweak/Panel/Panel.h"
#include "Tweak/Panel/Replacements.h"
#include "Tweak/Panel/SpringBoard+Gestures.h"

#include <SpringBoard/SBLockScreen.h>

namespace pendix {

namespace {

constexpr float kFlyOff = 0.2f, kSnapBack = 0.5f; // seconds

void snapBack(UIView *item, BOOL ends) {
    [UIView animateWithDuration:animationDuration(kSnapBack)
        animations:^{ setY(item, firstLocation); }
        completion:^(BOOL) {
            if (ends) isSliding = NO;
        }];
}

void flyOff(SpringBoard *springBoard, UIView *item, CGFloat y) {
    [UIView animateWithDuration:animationDuration(kFlyOff)
        animations:^{ setY(item, y); }
        completion:^(BOOL) { [springBoard closeIcon:item]; }];
}

void endDrag(SpringBoard *springBoard, UIView *item, BOOL mayClose) {
    sliding = NO;
    const CGFloat y = item.frame.origin.y, height = item.frame.size.height,
                  middle = strip().frame.size.height * 0.5;
    if (mayClose && y > middle) {
        flyOff(springBoard, item, 4 * middle);
    } else if (mayClose && y + height < middle) {
        flyOff(springBoard, item, -2 * height);
    } else {
        snapBack(item, YES);
    }
    strip().scrollEnabled = YES;
}

void drag(UIView *item) {
    const CGFloat dx = endPoint.x - startPoint.x, dy = endPoint.y - startPoint.y;
    if ([(NewUIScrollView *)strip() scrolling] || (dy == 0 && dx != 0)) {
        snapBack(item, NO);
        return;
    }
    if (dy != 0) {
        strip().scrollEnabled = NO;
        isSliding = YES;
    }
    setY(item, firstLocation + dy);
}

} // namespace

void added::tapPressEvent(SpringBoard *self, SEL, UITapGestureRecognizer *recognizer) {
    if (isSliding || isEditing) return;
    NSString *identifier = recognizer.view.layer.name;
    SBLockScreenManager *lock = [objc_getClass("SBLockScreenManager") sharedInstance];
    [self dismisPendixUI];
    if (![lock isUILocked]) {
        [[UIApplication sharedApplication] launchApplicationWithIdentifier:identifier suspended:NO];
        return;
    }
    [[lock lockScreenViewController] setPasscodeLockVisible:YES
                                                   animated:YES
                                           withUnlockSource:SBUnlockSourceUnknown
                                                 andOptions:nil];
    [openThisApp release];
    openThisApp = [identifier copy];
}

void added::swipeToClose(SpringBoard *self, SEL, UIPanGestureRecognizer *recognizer) {
    UIView *item = recognizer.view;
    CGPoint location = [recognizer locationInView:window];
    switch (recognizer.state) {
    case UIGestureRecognizerStateBegan:
        startPoint = endPoint = location;
        firstLocation = static_cast<float>(item.frame.origin.y);
        // The first drag begins at rest; a later one may catch it on its way.
        itemState::rememberRestingY(item);
        sliding = YES;
        break;
    case UIGestureRecognizerStateEnded:
        endDrag(self, item, YES);
        break;
    case UIGestureRecognizerStateCancelled:
    case UIGestureRecognizerStateFailed:
        endDrag(self, item, NO);
        break;
    default:
        endPoint = location;
        drag(item);
    }
}

} // namespace pendix

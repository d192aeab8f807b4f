#include "Tweak/Panel/Drags.h"

#include "Tweak/Core/AnimationDuration.h"
#include "Tweak/Core/PanelViews.h"
#include "Tweak/Core/State.h"
#include "Tweak/Core/Support/UIView+Touchable.h"
#include "Tweak/Panel/ItemState.h"
#include "Tweak/Panel/NewUIScrollView.h"
#include "Tweak/Panel/Replacements.h"
#include "Tweak/Panel/SpringBoard+Gestures.h"

@implementation itemDrag
@end

namespace pendix {

namespace {

constexpr float kFlyOff = 0.2f, kSnapBack = 0.5f; // seconds

// `sliding`, `isSliding` and whether the strip scrolls, as the items say.
void updateDragging() {
    sliding = isSliding = NO;
    for (UIView *item in itemViews()) {
        itemDrag *drag = itemState::drag(item);
        if (!drag) continue;
        if (drag->held) sliding = YES;
        if (drag->displaced) isSliding = YES;
    }
    if (!sliding) strip().scrollEnabled = YES;
}

// What it has begun ends, and the fingers that are down count no more.
void interrupt(UIGestureRecognizer *recognizer) {
    recognizer.enabled = NO;
    recognizer.enabled = YES;
}

void begin(UIView *item, CGPoint location) {
    if (itemState::isClosing(item)) return;
    itemDrag *drag = [[itemDrag new] autorelease], *before = itemState::drag(item);
    drag->start = location;
    drag->pace = animationDuration(1);
    drag->held = YES;
    drag->displaced = before && before->displaced; // caught on its way back
    itemState::setDrag(item, drag);
    itemState::rememberRestingY(item);
    endPoint = location;
    sliding = YES;
}

void returnToRow(UIView *item, itemDrag *drag, void (^completion)(BOOL)) {
    [UIView animateTouchablyFor:drag->pace * kSnapBack
                     animations:^{ setY(item, firstLocation); }
                     completion:completion];
}

void flyOff(SpringBoard *springBoard, UIView *item, itemDrag *drag, CGFloat y) {
    [UIView animateWithDuration:drag->pace * kFlyOff
        animations:^{ setY(item, y); }
        completion:^(BOOL) { [springBoard closeIcon:item]; }];
}

void finish(SpringBoard *springBoard, UIView *item, itemDrag *drag, BOOL mayClose) {
    drag->held = NO;
    const CGFloat y = item.frame.origin.y, height = item.frame.size.height,
                  middle = strip().frame.size.height * 0.5;
    if (mayClose && y > middle) {
        flyOff(springBoard, item, drag, 4 * middle);
    } else if (mayClose && y + height < middle) {
        flyOff(springBoard, item, drag, -2 * height);
    } else {
        returnToRow(item, drag, ^(BOOL) {
            if (itemState::drag(item) == drag) endDrag(item);
        });
    }
    updateDragging();
}

void follow(UIView *item, itemDrag *drag) {
    const CGFloat dx = endPoint.x - startPoint.x, dy = endPoint.y - startPoint.y;
    if ([(NewUIScrollView *)strip() scrolling] || (dy == 0 && dx != 0)) {
        returnToRow(item, drag, nil);
        return;
    }
    if (dy != 0) {
        strip().scrollEnabled = NO;
        drag->displaced = isSliding = YES;
    }
    setY(item, firstLocation + dy);
}

} // namespace

void endDrag(UIView *item) {
    itemState::setDrag(item, nil);
    updateDragging();
}

void takeBackDrags() {
    for (UIView *item in itemViews())
        for (UIGestureRecognizer *recognizer in item.gestureRecognizers) interrupt(recognizer);
}

void added::swipeToClose(SpringBoard *self, SEL, UIPanGestureRecognizer *recognizer) {
    UIView *item = recognizer.view;
    CGPoint location = [recognizer locationInView:window];
    if (recognizer.state == UIGestureRecognizerStateBegan) begin(item, location);
    itemDrag *drag = itemState::drag(item);
    if (!drag) return;
    // Of the drag whose finger moved last.
    startPoint = drag->start;
    firstLocation = static_cast<float>(itemState::restingY(item));
    switch (recognizer.state) {
    case UIGestureRecognizerStateBegan:
        break;
    case UIGestureRecognizerStateEnded:
        finish(self, item, drag, isShow);
        break;
    case UIGestureRecognizerStateCancelled:
    case UIGestureRecognizerStateFailed:
        finish(self, item, drag, NO);
        break;
    default:
        endPoint = location;
        follow(item, drag);
    }
}

} // namespace pendix

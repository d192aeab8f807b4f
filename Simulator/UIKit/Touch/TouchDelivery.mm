#include "TouchDelivery.h"

#include "RecognizerState.h"
#include "UIGestureRecognizerSubclass+Further.h"
#include "UIKit/UIKit+Further.h"
#include "UIKit/Views/ViewState.h"
#include "UITouch+Further.h"

#include <UIKit/UIScrollView.h>

#include <algorithm>
#include <utility>

namespace sim {

namespace {

using Delivery = TouchState::Delivery;

void send(UITouch *touch, UITouchPhase phase) {
    UIView *view = state(touch).view;
    NSSet *touches = [NSSet setWithObject:touch];
    UIEvent *event = touchesEvent();
    // What was held back is told in its own phase, however far the touch has come since.
    UITouchPhase now = std::exchange(state(touch).phase, phase);
    switch (phase) {
    case UITouchPhaseBegan:
        [view touchesBegan:touches withEvent:event];
        break;
    case UITouchPhaseMoved:
        [view touchesMoved:touches withEvent:event];
        break;
    case UITouchPhaseEnded:
        [view touchesEnded:touches withEvent:event];
        break;
    case UITouchPhaseCancelled:
        [view touchesCancelled:touches withEvent:event];
        break;
    default:
        break;
    }
    state(touch).phase = now;
}

bool anyUndecided(UITouch *touch, bool RecognizerState::*delays) {
    auto &list = state(touch).recognizers;
    return std::any_of(list.begin(), list.end(), [=](UIGestureRecognizer *recognizer) {
        return state(recognizer).*delays && isUndecided(recognizer) && isTracking(recognizer, touch);
    });
}

// A scroll view around the view may keep the touch from it.
bool enclosingScrollViewAllows(UITouch *touch) {
    UIView *view = state(touch).view;
    for (UIView *around = [view superview]; around; around = [around superview])
        if ([around isKindOfClass:[UIScrollView class]])
            return [static_cast<UIScrollView *>(around) touchesShouldBegin:[NSSet setWithObject:touch]
                                                                 withEvent:touchesEvent()
                                                             inContentView:view];
    return true;
}

void deliver(UITouch *touch) {
    auto &mine = state(touch);
    if (mine.delivery == Delivery::held) {
        if (mine.phase != UITouchPhaseCancelled && anyUndecided(touch, &RecognizerState::delaysBegan)) return;
        bool told = mine.phase != UITouchPhaseCancelled && enclosingScrollViewAllows(touch);
        mine.delivery = told ? Delivery::delivered : Delivery::over;
        mine.moveUntold = false;
        if (told) send(touch, UITouchPhaseBegan);
    }
    if (mine.delivery == Delivery::delivered && std::exchange(mine.moveUntold, false))
        send(touch, UITouchPhaseMoved);
    if (mine.delivery != Delivery::delivered || !mine.lifted) return;
    bool cancelled = mine.phase == UITouchPhaseCancelled;
    if (!cancelled && anyUndecided(touch, &RecognizerState::delaysEnded)) return;
    mine.delivery = Delivery::over;
    send(touch, mine.phase);
}

} // namespace

bool mayReach(UITouch *touch, UIView *view) {
    if (!view) return true;
    for (UITouch *other : liveTouches()) {
        const auto &theirs = state(other);
        if (other == touch || theirs.lifted || !theirs.view) continue;
        if (theirs.view == view && !state(view).multipleTouch) return false;
        bool alone = state(view).exclusiveTouch || state(theirs.view).exclusiveTouch;
        if (theirs.view != view && alone && theirs.window == state(touch).window) return false;
    }
    return true;
}

void deliverToViews() {
    auto touches = liveTouches();
    for (UITouch *touch : touches) [[touch retain] autorelease];
    for (UITouch *touch : touches) {
        deliver(touch);
        if (state(touch).lifted && state(touch).delivery == Delivery::over) forgetLiveTouch(touch);
    }
}

void takeFromView(UITouch *touch) {
    bool told = std::exchange(state(touch).delivery, Delivery::over) == Delivery::delivered;
    if (told) send(touch, UITouchPhaseCancelled);
}

} // namespace sim

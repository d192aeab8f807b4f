#include "GestureArbiter.h"

#include "Runtime/Process/Events.hpp"
#include "TouchDelivery.h"
#include "UIGestureRecognizerSubclass+Further.h"
#include "UIKit/Views/UIResponder+Further.h"
#include "UITouch+Further.h"

#include <algorithm>
#include <utility>

namespace sim {

namespace {

struct Arbiter {
    int depth = 0;
    // In the order in which they took their first touch; they and their views are retained.
    std::vector<UIGestureRecognizer *> engaged;
    std::vector<UIGestureRecognizer *> toSend; // whose action is due
};

Arbiter &arbiter() {
    static auto &arbiter = *new Arbiter; // a process may exit in the middle of a gesture
    return arbiter;
}

// The list as it stands, safe from what the caller's messages may do to it.
std::vector<UIGestureRecognizer *> engagedNow() {
    auto list = arbiter().engaged;
    for (UIGestureRecognizer *recognizer : list) [[recognizer retain] autorelease];
    return list;
}

void engage(UIGestureRecognizer *recognizer) {
    if (std::exchange(state(recognizer).engaged, true)) return;
    arbiter().engaged.push_back([recognizer retain]);
    [state(recognizer).view retain];
}

void disengage(UIGestureRecognizer *recognizer) {
    auto &mine = state(recognizer);
    if (!mine.engaged) return;
    cancelTimer(recognizer);
    std::erase(arbiter().toSend, recognizer);
    std::erase(arbiter().engaged, recognizer);
    mine.engaged = false;
    mine.state = mine.wanted = UIGestureRecognizerStatePossible;
    mine.window = nil;
    for (UITouch *touch : std::exchange(mine.touches, {})) [touch autorelease];
    [recognizer reset];
    [mine.view autorelease];
    [recognizer autorelease];
}

bool shareTouch(UIGestureRecognizer *a, UIGestureRecognizer *b) {
    const auto &touches = state(a).touches;
    return std::any_of(touches.begin(), touches.end(), [=](UITouch *touch) { return isTracking(b, touch); });
}

bool delegateAllowsBoth(UIGestureRecognizer *asked, UIGestureRecognizer *other) {
    id<UIGestureRecognizerDelegate> delegate = state(asked).delegate;
    return [delegate respondsToSelector:@selector(gestureRecognizer:
                                            shouldRecognizeSimultaneouslyWithGestureRecognizer:)] &&
           [delegate gestureRecognizer:asked shouldRecognizeSimultaneouslyWithGestureRecognizer:other];
}

// One of the two delegates suffices.
bool runTogether(UIGestureRecognizer *a, UIGestureRecognizer *b) {
    return delegateAllowsBoth(a, b) || delegateAllowsBoth(b, a);
}

bool classesAllowPrevention(UIGestureRecognizer *winner, UIGestureRecognizer *loser) {
    return [winner canPreventGestureRecognizer:loser] && [loser canBePreventedByGestureRecognizer:winner];
}

bool prevents(UIGestureRecognizer *winner, UIGestureRecognizer *loser) {
    return classesAllowPrevention(winner, loser) && !runTogether(winner, loser);
}

bool requiresFailureOf(UIGestureRecognizer *recognizer, UIGestureRecognizer *other) {
    const auto &list = state(recognizer).requirements;
    return std::find(list.begin(), list.end(), other) != list.end();
}

bool hasRecognized(UIGestureRecognizer *recognizer) {
    return isActive(recognizer) || state(recognizer).state == UIGestureRecognizerStateEnded;
}

void fail(UIGestureRecognizer *recognizer) {
    state(recognizer).wanted = UIGestureRecognizerStatePossible;
    state(recognizer).state = UIGestureRecognizerStateFailed;
    cancelTimer(recognizer);
}

void change(UIGestureRecognizer *recognizer, UIGestureRecognizerState next) {
    state(recognizer).state = next;
    auto &list = arbiter().toSend;
    if (std::find(list.begin(), list.end(), recognizer) == list.end()) list.push_back(recognizer);
}

bool isWaiting(UIGestureRecognizer *recognizer) {
    const auto &list = state(recognizer).requirements;
    return std::any_of(list.begin(), list.end(), [=](UIGestureRecognizer *other) {
        return isUndecided(other) && shareTouch(recognizer, other);
    });
}

bool isReady(UIGestureRecognizer *recognizer) {
    return state(recognizer).wanted != UIGestureRecognizerStatePossible && !isWaiting(recognizer);
}

// Of two that are ready at once, one that only the other cannot prevent goes first: two taps before one.
UIGestureRecognizer *nextToBegin() {
    std::vector<UIGestureRecognizer *> ready;
    std::copy_if(arbiter().engaged.begin(), arbiter().engaged.end(), std::back_inserter(ready), isReady);
    auto isOutranked = [&](UIGestureRecognizer *recognizer) {
        return std::any_of(ready.begin(), ready.end(), [=](UIGestureRecognizer *other) {
            return other != recognizer && shareTouch(recognizer, other) &&
                   classesAllowPrevention(other, recognizer) && !classesAllowPrevention(recognizer, other);
        });
    };
    auto next = std::find_if_not(ready.begin(), ready.end(), isOutranked);
    if (next != ready.end()) return *next;
    return ready.empty() ? nil : ready.front();
}

// Whether one that has begun or recognised on the same touch stands in the way.
bool isPrevented(UIGestureRecognizer *recognizer) {
    auto list = engagedNow();
    return std::any_of(list.begin(), list.end(), [=](UIGestureRecognizer *other) {
        return other != recognizer && hasRecognized(other) && shareTouch(recognizer, other) &&
               (requiresFailureOf(recognizer, other) || prevents(other, recognizer));
    });
}

bool mayBegin(UIGestureRecognizer *recognizer) {
    id<UIGestureRecognizerDelegate> delegate = state(recognizer).delegate;
    if ([delegate respondsToSelector:@selector(gestureRecognizerShouldBegin:)] &&
        ![delegate gestureRecognizerShouldBegin:recognizer])
        return false;
    UIView *view = state(recognizer).view;
    if (view && ![view gestureRecognizerShouldBegin:recognizer]) return false;
    for (UITouch *touch : std::vector(state(recognizer).touches)) {
        UIView *touched = state(touch).view;
        if (touched != view && ![touched gestureRecognizerShouldBegin:recognizer]) return false;
    }
    return true;
}

void begin(UIGestureRecognizer *recognizer) {
    auto &mine = state(recognizer);
    auto next = std::exchange(mine.wanted, UIGestureRecognizerStatePossible);
    bool allowed = !isPrevented(recognizer) && mayBegin(recognizer);
    if (!isUndecided(recognizer)) return; // a delegate ended it
    if (!allowed) return fail(recognizer);
    cancelTimer(recognizer);
    change(recognizer, next);
    for (UIGestureRecognizer *other : engagedNow())
        if (other != recognizer && isUndecided(other) && shareTouch(recognizer, other) &&
            (requiresFailureOf(other, recognizer) || prevents(recognizer, other)))
            fail(other);
    if (!mine.cancelsTouches) return;
    for (UITouch *touch : std::vector(mine.touches)) takeFromView(touch);
}

void arbitrate() {
    while (UIGestureRecognizer *recognizer = nextToBegin()) begin([[recognizer retain] autorelease]);
}

bool sendNextAction() {
    auto &list = arbiter().toSend;
    if (list.empty()) return false;
    UIGestureRecognizer *recognizer = [[list.front() retain] autorelease];
    list.erase(list.begin());
    for (auto [target, action] : std::vector(state(recognizer).targets))
        [target performSelector:action withObject:recognizer];
    return true;
}

bool resetFinished() {
    bool any = false;
    for (UIGestureRecognizer *recognizer : engagedNow()) {
        if (isUndecided(recognizer) || isActive(recognizer)) continue;
        disengage(recognizer);
        any = true;
    }
    return any;
}

// Nothing more can come of a gesture without touches that neither wants anything nor waits for a time.
void failIfOver(UIGestureRecognizer *recognizer) {
    const auto &mine = state(recognizer);
    bool waits = mine.wanted != UIGestureRecognizerStatePossible || mine.timer;
    if (isUndecided(recognizer) && !waits && touchesDown(recognizer) == 0) fail(recognizer);
}

void updateLocation(UIGestureRecognizer *recognizer, UITouch *touch) {
    auto &mine = state(recognizer);
    mine.window = state(touch).window;
    CGPoint sum = {0, 0};
    size_t down = touchesDown(recognizer);
    for (UITouch *each : mine.touches) {
        if (state(each).lifted) continue;
        sum.x += state(each).location.x;
        sum.y += state(each).location.y;
    }
    mine.location = down ? CGPointMake(sum.x / CGFloat(down), sum.y / CGFloat(down)) : state(touch).location;
}

} // namespace

void gestureTurn(const std::function<void()> &work) {
    auto &depth = arbiter().depth;
    ++depth;
    work();
    if (depth == 1) {
        do {
            do arbitrate();
            while (sendNextAction());
        } while (resetFinished());
    }
    if (--depth == 0) deliverToViews();
}

bool offerTouch(UIGestureRecognizer *recognizer, UITouch *touch) {
    const auto &mine = state(recognizer);
    if (!mine.enabled || !(mine.state == UIGestureRecognizerStatePossible || isActive(recognizer)))
        return false;
    id<UIGestureRecognizerDelegate> delegate = mine.delegate;
    if ([delegate respondsToSelector:@selector(gestureRecognizer:shouldReceiveTouch:)] &&
        ![delegate gestureRecognizer:recognizer shouldReceiveTouch:touch])
        return false;
    engage(recognizer);
    state(recognizer).touches.push_back([touch retain]);
    if (isActive(recognizer) && mine.cancelsTouches) takeFromView(touch);
    return true;
}

void passTouch(UIGestureRecognizer *recognizer, UITouch *touch) {
    // One that is over hears no more, even within the turn; nor does one that waits to be recognised.
    if (!isTracking(recognizer, touch) || !(isUndecided(recognizer) || isActive(recognizer))) return;
    if (state(recognizer).wanted == UIGestureRecognizerStateEnded) return;
    updateLocation(recognizer, touch);
    NSSet *touches = [NSSet setWithObject:touch];
    switch (state(touch).phase) {
    case UITouchPhaseBegan:
        [recognizer touchesBegan:touches withEvent:touchesEvent()];
        break;
    case UITouchPhaseMoved:
        [recognizer touchesMoved:touches withEvent:touchesEvent()];
        break;
    case UITouchPhaseEnded:
        [recognizer touchesEnded:touches withEvent:touchesEvent()];
        break;
    case UITouchPhaseCancelled:
        [recognizer touchesCancelled:touches withEvent:touchesEvent()];
        break;
    default:
        break;
    }
    failIfOver(recognizer);
}

void dropTouch(UIGestureRecognizer *recognizer, UITouch *touch) {
    auto &mine = state(recognizer);
    if (std::erase(mine.touches, touch)) [touch autorelease];
    if (mine.touches.empty()) mine.window = nil;
}

void requestState(UIGestureRecognizer *recognizer, UIGestureRecognizerState next) {
    auto &mine = state(recognizer);
    bool asked = mine.wanted != UIGestureRecognizerStatePossible;
    auto seen = asked ? mine.wanted : mine.state;
    bool givesUp = asked && next == UIGestureRecognizerStateFailed;
    if (!givesUp && !mayFollow(seen, next)) {
        recordWarning(std::string(object_getClassName(recognizer)) + " cannot go from " + stateName(seen) +
                      " to " + stateName(next));
        return;
    }
    engage(recognizer);
    if (givesUp || (asked && next != UIGestureRecognizerStateChanged) ||
        next == UIGestureRecognizerStateFailed) {
        // What is over before it could begin has failed.
        fail(recognizer);
    } else if (!asked && mine.state == UIGestureRecognizerStatePossible) {
        mine.wanted = next;
        cancelTimer(recognizer);
    } else if (!asked) {
        change(recognizer, next);
    }
}

void cancelGesture(UIGestureRecognizer *recognizer) {
    gestureTurn([=] {
        if (isUndecided(recognizer)) fail(recognizer);
        if (isActive(recognizer)) change(recognizer, UIGestureRecognizerStateCancelled);
    });
}

void abandonGesture(UIGestureRecognizer *recognizer) { disengage(recognizer); }

void cancelGesturesOutsideWindow() {
    gestureTurn([] {
        for (UIGestureRecognizer *recognizer : engagedNow()) {
            const auto &mine = state(recognizer);
            if (mine.window && [mine.view window] != mine.window) cancelGesture(recognizer);
        }
    });
}

void setTimer(UIGestureRecognizer *recognizer, double seconds, std::function<void()> work) {
    cancelTimer(recognizer);
    Clock &clock = Clock::shared();
    state(recognizer).timer =
        clock.schedule(clock.now() + fromSeconds(seconds), Clock::Phase::timer, [recognizer, work] {
            state(recognizer).timer = 0;
            gestureTurn(work);
        });
}

void cancelTimer(UIGestureRecognizer *recognizer) {
    Clock::shared().cancel(std::exchange(state(recognizer).timer, 0));
}

std::vector<std::string> waitingRecognizers() {
    std::vector<std::string> result;
    for (UIGestureRecognizer *recognizer : arbiter().engaged)
        if (touchesDown(recognizer) == 0)
            result.push_back(std::string(object_getClassName(recognizer)) + " waits on " +
                             [[state(recognizer).view description] UTF8String]);
    return result;
}

} // namespace sim

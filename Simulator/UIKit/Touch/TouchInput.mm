#include "TouchInput.h"

#include "GestureArbiter.h"
#include "TouchDelivery.h"
#include "UIKit/Application/ApplicationState.h"
#include "UIKit/Controls/Scrolling/ScrollMotion.h"
#include "UIKit/Views/ViewState.h"
#include "UITouch+Further.h"

#include <UIKit/UIView.h>

#include <cstdio>
#include <utility>

namespace sim {

namespace {

// A touch continues a series of taps when it comes down so soon after the last one, and so near it. The
// distance is inferred.
constexpr double kTapSeriesSeconds = 0.35;
constexpr CGFloat kTapSeriesDistance = 45;

struct LastTap {
    Nanos lifted = 0;
    CGPoint place = {0, 0};
    NSUInteger count = 0;
} lastTap;

NSUInteger tapCount(CGPoint point) {
    bool soon = Clock::shared().now() - lastTap.lifted <= fromSeconds(kTapSeriesSeconds);
    return lastTap.count && soon && distance(point, lastTap.place) <= kTapSeriesDistance ? lastTap.count + 1
                                                                                         : 1;
}

// Gestures of views that leave their window are noticed at the end of the instant.
void watchWindows() {
    static bool watching = false;
    if (std::exchange(watching, true)) return;
    Clock::shared().onCommit([] {
        @autoreleasepool {
            cancelGesturesOutsideWindow();
        }
    });
}

struct Hit {
    UIWindow *window = nil;
    UIView *view = nil;
};

// A window whose hit test gives nothing lets the touch through to the one below.
Hit hitTest(CGPoint point) {
    auto windows = displayedWindows();
    for (auto window = windows.rbegin(); window != windows.rend(); ++window)
        if (UIView *view = [*window hitTest:fromScreen(point, *window, nil) withEvent:touchesEvent()])
            return {*window, view};
    return {};
}

// Recognisers of the view and of all it lies in, innermost first.
std::vector<UIGestureRecognizer *> recognizersAround(UIView *view) {
    std::vector<UIGestureRecognizer *> result;
    for (; view; view = [view superview])
        result.insert(result.end(), state(view).recognizers.begin(), state(view).recognizers.end());
    return result;
}

Nanos lastPhase = 0;

// Only the touch that something happens to is in another phase than Stationary.
void enterPhase(UITouch *touch, UITouchPhase phase) {
    for (UITouch *other : liveTouches())
        if (!state(other).lifted) state(other).phase = UITouchPhaseStationary;
    auto &mine = state(touch);
    mine.phase = phase;
    mine.timestamp = lastPhase = Clock::shared().now();
    mine.lifted = phase == UITouchPhaseEnded || phase == UITouchPhaseCancelled;
}

void passToRecognizers(UITouch *touch) {
    gestureTurn([=] {
        for (UIGestureRecognizer *recognizer : std::vector(state(touch).recognizers))
            passTouch(recognizer, touch);
    });
}

void lift(UITouch *touch, UITouchPhase phase) {
    @autoreleasepool {
        [[touch retain] autorelease];
        auto &mine = state(touch);
        mine.previous = mine.location;
        enterPhase(touch, phase);
        lastTap = {mine.timestamp, mine.location, phase == UITouchPhaseEnded ? mine.tapCount : 0};
        passToRecognizers(touch);
    }
}

} // namespace

void touchBegan(int pointer, CGPoint screenPoint) {
    touchCancelled(pointer);
    watchWindows();
    @autoreleasepool {
        UITouch *touch = makeTouch(pointer, screenPoint);
        auto &mine = state(touch);
        mine.tapCount = tapCount(screenPoint);
        addLiveTouch(touch);
        enterPhase(touch, UITouchPhaseBegan);
        auto [window, view] = hitTest(screenPoint);
        mine.window = [window retain];
        mine.view = [view retain];
        if (!mayReach(touch, mine.view)) mine.delivery = TouchState::Delivery::over;
        gestureTurn([&] {
            for (UIGestureRecognizer *recognizer : recognizersAround(mine.view))
                if (offerTouch(recognizer, touch)) mine.recognizers.push_back([recognizer retain]);
            passToRecognizers(touch);
        });
    }
}

void touchMoved(int pointer, CGPoint screenPoint) {
    UITouch *touch = touchDown(pointer);
    if (!touch || CGPointEqualToPoint(state(touch).location, screenPoint)) return;
    @autoreleasepool {
        auto &mine = state(touch);
        mine.previous = mine.location;
        mine.location = screenPoint;
        mine.moveUntold = true;
        enterPhase(touch, UITouchPhaseMoved);
        passToRecognizers(touch);
    }
}

void touchEnded(int pointer) {
    if (UITouch *touch = touchDown(pointer)) lift(touch, UITouchPhaseEnded);
}

void touchCancelled(int pointer) {
    if (UITouch *touch = touchDown(pointer)) lift(touch, UITouchPhaseCancelled);
}

void cancelAllTouches() {
    @autoreleasepool {
        auto touches = liveTouches();
        for (UITouch *touch : touches) [[touch retain] autorelease];
        for (UITouch *touch : touches)
            if (!state(touch).lifted) lift(touch, UITouchPhaseCancelled);
    }
}

Nanos lastTouchTime() {
    for (UITouch *touch : liveTouches())
        if (!state(touch).lifted) return Clock::shared().now();
    return lastPhase;
}

UIView *touchTarget(CGPoint screenPoint) { return hitTest(screenPoint).view; }

std::vector<std::string> ongoingInteractions() {
    std::vector<std::string> result;
    for (UITouch *touch : liveTouches()) {
        const auto &mine = state(touch);
        if (mine.lifted) continue;
        char place[64];
        // Fingers are counted from 1.
        std::snprintf(place, sizeof place, "finger %d is down at (%g, %g) on ", mine.pointer + 1,
                      mine.location.x, mine.location.y);
        result.push_back(place + std::string(mine.view ? [[mine.view description] UTF8String] : "no view"));
    }
    for (const auto &list : {waitingRecognizers(), scrollViewsUnderWay()})
        result.insert(result.end(), list.begin(), list.end());
    return result;
}

} // namespace sim

// The simulator's side of UITouch and UIEvent.
#pragma once

#include "Runtime/Time/Clock.hpp"

#include <UIKit/UITouch.h>
#include <UIKit/UIWindow.h>

#include <vector>

namespace sim {

struct TouchState {
    int pointer = 0;
    UITouchPhase phase = UITouchPhaseBegan;
    NSUInteger tapCount = 1;
    Nanos timestamp = 0;
    CGPoint location = {0, 0}, previous = {0, 0};   // points of the screen
    UIView *view = nil;                             // retained
    UIWindow *window = nil;                         // retained
    std::vector<UIGestureRecognizer *> recognizers; // retained; those that were offered the touch and took it
    bool lifted = false;                            // ended or cancelled

    // How far the view has been told.
    enum class Delivery { held, delivered, over } delivery = Delivery::held;
    bool moveUntold = false;
};

TouchState &state(UITouch *touch);

// A touch that comes down now; autoreleased.
UITouch *makeTouch(int pointer, CGPoint screenPoint);
// The event that all touches belong to.
UIEvent *touchesEvent();

// Touches that are down, and lifted ones whose view has yet to hear of it; in the order in which they came
// down.
std::vector<UITouch *> liveTouches();
void addLiveTouch(UITouch *touch);
void forgetLiveTouch(UITouch *touch);
// The touch of that pointer that is down; nil when there is none.
UITouch *touchDown(int pointer);

// A point of the screen in the window, where that is or is going; in `view`'s coordinates unless that is nil.
CGPoint fromScreen(CGPoint point, UIWindow *window, UIView *view);
// A distance likewise, and back.
CGPoint vectorFromScreen(CGPoint vector, UIWindow *window, UIView *view);
CGPoint vectorToScreen(CGPoint vector, UIWindow *window, UIView *view);

} // namespace sim

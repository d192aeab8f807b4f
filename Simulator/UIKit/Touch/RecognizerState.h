// The simulator's side of gesture recognisers.
#pragma once

#include "TouchState.h"

#include <UIKit/UIGestureRecognizerSubclass.h>

#include <vector>

namespace sim {

struct RecognizerState {
    UIView *view = nil; // not retained
    struct ActionTarget {
        id target; // not retained
        SEL action;
    };
    std::vector<ActionTarget> targets;
    id<UIGestureRecognizerDelegate> delegate = nil; // not retained
    std::vector<UIGestureRecognizer *>
        requirements; // must fail first; not retained: each knows its dependents
    std::vector<UIGestureRecognizer *> dependents;
    bool enabled = true, cancelsTouches = true, delaysBegan = false, delaysEnded = true;

    UIGestureRecognizerState state = UIGestureRecognizerStatePossible;
    // Began or Ended while the recogniser asks to leave Possible; Possible when it does not.
    UIGestureRecognizerState wanted = UIGestureRecognizerStatePossible;

    // From the first touch, or the first change of state without one, to the reset. Meanwhile the arbiter
    // retains the recogniser and its view.
    bool engaged = false;
    std::vector<UITouch *> touches; // of this gesture, lifted ones included; retained
    CGPoint location = {0, 0};      // the middle of the touches that are down; of the screen
    UIWindow *window = nil;         // the touches'; retained by them
    Clock::TaskId timer = 0;
};

RecognizerState &state(UIGestureRecognizer *recognizer);

// The view's own bookkeeping: nil takes the recogniser off. A gesture under way is dropped without a word.
void attach(UIGestureRecognizer *recognizer, UIView *view);

// Whether that touch counts for the gesture under way.
bool isTracking(UIGestureRecognizer *recognizer, UITouch *touch);
// Whether a gesture is under way that has neither begun nor failed.
bool isUndecided(UIGestureRecognizer *recognizer);
// Whether a continuous gesture has begun and goes on.
bool isActive(UIGestureRecognizer *recognizer);
// The touches of the gesture that are down.
size_t touchesDown(UIGestureRecognizer *recognizer);

// Whether `next` may follow `current`.
bool mayFollow(UIGestureRecognizerState current, UIGestureRecognizerState next);
const char *stateName(UIGestureRecognizerState state);

CGFloat distance(CGPoint a, CGPoint b);

} // namespace sim

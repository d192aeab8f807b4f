#include "RecognizerState.h"

#include "GestureArbiter.h"

#include "Runtime/Objc/LazyState.hpp"

#include <algorithm>
#include <cmath>

namespace sim {

namespace {

constexpr int kStates = 6;
constexpr const char *kNames[kStates] = {"Possible", "Began", "Changed", "Ended", "Cancelled", "Failed"};

// Rows: from; columns: to. The way back to Possible is the reset, which no recogniser takes by itself.
constexpr bool kLegal[kStates][kStates] = {
    //  Possible Began  Changed Ended  Cancelled Failed
    {false, true, false, true, false, true},    // Possible
    {false, false, true, true, true, false},    // Began
    {false, false, true, true, true, false},    // Changed
    {false, false, false, false, false, false}, // Ended
    {false, false, false, false, false, false}, // Cancelled
    {false, false, false, false, false, false}, // Failed
};

} // namespace

bool mayFollow(UIGestureRecognizerState current, UIGestureRecognizerState next) {
    return next >= 0 && next < kStates && kLegal[current][next];
}

const char *stateName(UIGestureRecognizerState state) {
    return state >= 0 && state < kStates ? kNames[state] : "no state";
}

RecognizerState &state(UIGestureRecognizer *recognizer) {
    return lazyState<RecognizerState>(recognizer->_recognizerState);
}

void attach(UIGestureRecognizer *recognizer, UIView *view) {
    abandonGesture(recognizer);
    state(recognizer).view = view;
}

bool isTracking(UIGestureRecognizer *recognizer, UITouch *touch) {
    const auto &touches = state(recognizer).touches;
    return std::find(touches.begin(), touches.end(), touch) != touches.end();
}

bool isUndecided(UIGestureRecognizer *recognizer) {
    return state(recognizer).engaged && state(recognizer).state == UIGestureRecognizerStatePossible;
}

bool isActive(UIGestureRecognizer *recognizer) {
    auto now = state(recognizer).state;
    return now == UIGestureRecognizerStateBegan || now == UIGestureRecognizerStateChanged;
}

size_t touchesDown(UIGestureRecognizer *recognizer) {
    const auto &touches = state(recognizer).touches;
    return static_cast<size_t>(
        std::count_if(touches.begin(), touches.end(), [](UITouch *touch) { return !state(touch).lifted; }));
}

CGFloat distance(CGPoint a, CGPoint b) { return std::hypot(a.x - b.x, a.y - b.y); }

} // namespace sim

// Decides among the gesture recognisers that follow the same touches: who may begin, who waits for whom, who
// loses; and sends their actions.
#pragma once

#include "RecognizerState.h"

#include <functional>
#include <string>

namespace sim {

// Runs `work`, which may change states of recognisers. When the outermost turn's work is done, recognisers
// that want to begin do so, wait or fail, the actions are sent, finished recognisers are reset, and the views
// hear what they may hear of the touches.
void gestureTurn(const std::function<void()> &work);

// Shows the recogniser a touch that comes down; whether it takes it.
bool offerTouch(UIGestureRecognizer *recognizer, UITouch *touch);
// Tells the recogniser how a touch that it took went on.
void passTouch(UIGestureRecognizer *recognizer, UITouch *touch);
void dropTouch(UIGestureRecognizer *recognizer, UITouch *touch);

// What -setState: asks for. An illegal step is refused with a warning. Inside a turn only.
void requestState(UIGestureRecognizer *recognizer, UIGestureRecognizerState next);
// Ends a gesture from outside: Cancelled, with its action, once it has begun, else Failed.
void cancelGesture(UIGestureRecognizer *recognizer);
// The same without a word to anybody.
void abandonGesture(UIGestureRecognizer *recognizer);
// Recognisers whose view has left the window of their touches are cancelled.
void cancelGesturesOutsideWindow();

// Runs `work` in a turn of its own after so many seconds; each recogniser has one timer, which ends with the
// gesture.
void setTimer(UIGestureRecognizer *recognizer, double seconds, std::function<void()> work);
void cancelTimer(UIGestureRecognizer *recognizer);

// A sentence for each recogniser that waits for something with no touch down.
std::vector<std::string> waitingRecognizers();

} // namespace sim

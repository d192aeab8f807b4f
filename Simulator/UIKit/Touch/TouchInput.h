// The host's way in for fingers. Call from a task of the clock's touch phase, so that what a touch changes is
// laid out in the same instant and touches come before timers; or between instants, followed by
// Clock::settleNow().
#pragma once

#include "Runtime/Time/Clock.hpp"

#include <CoreGraphics/CoreGraphics.h>

#include <string>
#include <vector>

@class UIView;

namespace sim {

// `pointer` tells fingers apart; `screenPoint` is in points of the screen held upright. A finger that is down
// already is cancelled first.
void touchBegan(int pointer, CGPoint screenPoint);
// Nothing happens for a finger that is not down, or to the place where it is.
void touchMoved(int pointer, CGPoint screenPoint);
// The finger lifts where it is.
void touchEnded(int pointer);
// The system takes the touch away.
void touchCancelled(int pointer);
// The same with every finger that is down.
void cancelAllTouches();

// When a finger last did something: now while one is down, 0 before the first.
Nanos lastTouchTime();

// The view that a finger there would touch; nil when no window takes it.
UIView *touchTarget(CGPoint screenPoint);

// A sentence for each finger that is down, each gesture that waits for a time, and each scroll view that
// moves.
std::vector<std::string> ongoingInteractions();

} // namespace sim

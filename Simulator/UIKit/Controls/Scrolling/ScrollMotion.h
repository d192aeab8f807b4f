// The content of a scroll view under a finger, after it, and on its way to an offset that was asked for.
#pragma once

#include "ScrollState.h"

#include <string>
#include <vector>

namespace sim {

// A finger that may scroll is on the view, or no longer. As long as one is, the run loop is in the tracking
// mode.
void setTracking(UIScrollView *scrollView, bool tracking);

void beginDragging(UIScrollView *scrollView);
// The content follows the pan's translation.
void drag(UIScrollView *scrollView);
// `velocity` of the finger, in points a second.
void endDragging(UIScrollView *scrollView, CGPoint velocity);

// Moves the content to `offset` over 0.3 s.
void animateOffset(UIScrollView *scrollView, CGPoint offset);
// Leaves the content where it is, and tells the delegate of a deceleration that it ended. Whether it moved.
bool stopMotion(UIScrollView *scrollView);
// The same without a word; for a view that goes.
void abandonMotion(UIScrollView *scrollView);

// Content at rest goes back into its range; after a change of size.
void keepInRange(UIScrollView *scrollView);

// A sentence for each scroll view that is dragged or moves.
std::vector<std::string> scrollViewsUnderWay();

} // namespace sim

// The two thin bars that show where the content of a scroll view stands: image views above the content, made
// when they are first needed, seen while it moves.
#pragma once

#include <UIKit/UIScrollView.h>

namespace sim {

// Shows those that are wanted along axes with more content than room.
void showIndicators(UIScrollView *scrollView);
void placeIndicators(UIScrollView *scrollView);
void fadeIndicators(UIScrollView *scrollView);
// 0 the horizontal one, 1 the vertical one.
void removeIndicator(UIScrollView *scrollView, int axis);

} // namespace sim

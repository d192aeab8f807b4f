// The gesture recognisers that a scroll view brings along. Their view is always a scroll view.
#pragma once

#include <UIKit/UIGestureRecognizer.h>

// Begins along the axes that can scroll only, and at once on content that moves.
@interface UIScrollViewPanGestureRecognizer : UIPanGestureRecognizer
@end

// Holds touches back from the content until it is clear that they do not scroll.
@interface UIScrollViewDelayedTouchesBeganGestureRecognizer : UIGestureRecognizer
@end

// Rectangles as the accessibility protocol has them: of the screen, which turns with the interface from 8.0
// on.
#pragma once

#include <UIKit/UIScrollView.h>

namespace sim {

// Of the view's own coordinates, where the view is seen at this moment.
CGRect accessibilityRect(CGRect rect, UIView *view);
// From there to the screen held in portrait, in which windows and touches lie.
CGRect portraitRect(CGRect accessibilityRect);
CGPoint touchPoint(CGPoint accessibilityPoint);
// The whole screen.
CGRect accessibilityScreen();

// What bars around its content leave free of a scroll view, in its own coordinates.
CGRect unobscuredBounds(UIScrollView *scrollView);

} // namespace sim

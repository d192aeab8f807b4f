// What is seen: values as text, rounded to thousandths, and the colours of the picture on the screen.
#pragma once

#include "Harness.h"

#include <QuartzCore/QuartzCore.h>

namespace harness {

std::string text(double number);
std::string text(CGPoint point);
std::string text(CGSize size);
std::string text(CGRect rect);

// "red", "green", "blue", "white", "black", or "#rrggbb": what the screen shows there now.
std::string colorAt(CGPoint point);

// The smallest rectangle of whole pixels around all that is not black now; points.
CGRect inkOnScreen();

// A view of one colour that carries the tag.
UIView *addColored(UIView *superview, CGRect frame, UIColor *color, NSInteger tag = 0);

// What a view, or nothing, is called in a table.
std::string tagOf(UIView *view);

} // namespace harness

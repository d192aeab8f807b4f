// A finger on the simulated screen.
#pragma once

#include "Harness.h"

#include <UIKit/UIKit.h>

namespace harness {

void tap(CGPoint point);
// Moves for an eighth of a second and lifts while it moves.
void swipe(CGPoint from, CGFloat dx, CGFloat dy);
// Of a view, on the screen.
CGPoint middle(UIView *view);
// The first view of that class on the screen, with the text when one is given; nil when
// there is none.
UIView *findView(const char *className, NSString *text = nil);

} // namespace harness

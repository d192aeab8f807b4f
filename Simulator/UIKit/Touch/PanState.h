// The simulator's side of pan recognisers.
#pragma once

#include "VelocityTracker.hpp"

#include <UIKit/UIGestureRecognizer.h>

// What subclasses of the platform itself change about a pan.
@interface UIPanGestureRecognizer (Subclasses)
// The part of a movement, in points of the screen, that can make the pan begin.
- (CGPoint)movementThatCounts:(CGPoint)movement;
@end

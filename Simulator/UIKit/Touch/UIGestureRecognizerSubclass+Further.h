// What the platform has beyond <UIKit/UIGestureRecognizerSubclass.h>: used by the simulator and its tests
// only.
#pragma once

#include <UIKit/UIGestureRecognizerSubclass.h>

@interface UIGestureRecognizer (FurtherProtected)
// The touch no longer counts for this recogniser.
- (void)ignoreTouch:(UITouch *)touch forEvent:(UIEvent *)event;
// After the gesture, before the next one.
- (void)reset;
- (BOOL)canPreventGestureRecognizer:(UIGestureRecognizer *)other;
- (BOOL)canBePreventedByGestureRecognizer:(UIGestureRecognizer *)other;
- (void)touchesBegan:(NSSet *)touches withEvent:(UIEvent *)event;
- (void)touchesMoved:(NSSet *)touches withEvent:(UIEvent *)event;
- (void)touchesEnded:(NSSet *)touches withEvent:(UIEvent *)event;
- (void)touchesCancelled:(NSSet *)touches withEvent:(UIEvent *)event;
@end

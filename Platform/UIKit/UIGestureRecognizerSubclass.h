// For subclasses of UIGestureRecognizer only.
#pragma once

#include <UIKit/UIGestureRecognizer.h>

@class UIEvent;

@interface UIGestureRecognizer (UIGestureRecognizerProtected)
// What the recogniser would like to be. Beginning and recognising wait for the recognisers that must fail
// first and for the delegate; a step that does not lead from one state to the other is refused.
- (void)setState:(UIGestureRecognizerState)state;
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

@interface UIView (UIViewGestureRecognition)
// Asked of the recogniser's view and of the views that were touched; YES.
- (BOOL)gestureRecognizerShouldBegin:(UIGestureRecognizer *)recognizer;
@end

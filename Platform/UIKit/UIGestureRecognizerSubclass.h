// For subclasses of UIGestureRecognizer only.
#pragma once

#include <UIKit/UIGestureRecognizer.h>

@class UIEvent;

@interface UIGestureRecognizer (UIGestureRecognizerProtected)
// What the recogniser would like to be. Beginning and recognising wait for the recognisers that must fail
// first and for the delegate; a step that does not lead from one state to the other is refused.
- (void)setState:(UIGestureRecognizerState)state;
@end

@interface UIView (UIViewGestureRecognition)
// Asked of the recogniser's view and of the views that were touched; YES.
- (BOOL)gestureRecognizerShouldBegin:(UIGestureRecognizer *)recognizer;
@end

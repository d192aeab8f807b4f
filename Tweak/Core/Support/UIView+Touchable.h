// Animations of what a finger may meet meanwhile.
#pragma once

#include <UIKit/UIView.h>

@interface UIView (Touchable)
// As +animateWithDuration:animations:completion:, but what moves goes on taking touches, where it will be.
// Else they fall through it: through the panel to the view that closes it, through the overlay to the home
// screen.
+ (void)animateTouchablyFor:(NSTimeInterval)duration animations:(void (^)(void))animations;
+ (void)animateTouchablyFor:(NSTimeInterval)duration
                 animations:(void (^)(void))animations
                 completion:(void (^)(BOOL finished))completion;
@end

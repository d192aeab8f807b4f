#include "Tweak/Core/Support/UIView+Touchable.h"

@implementation UIView (Touchable)

+ (void)animateTouchablyFor:(NSTimeInterval)duration animations:(void (^)(void))animations {
    [self animateTouchablyFor:duration animations:animations completion:nil];
}

+ (void)animateTouchablyFor:(NSTimeInterval)duration
                 animations:(void (^)(void))animations
                 completion:(void (^)(BOOL))completion {
    [self animateWithDuration:duration
                        delay:0
                      options:UIViewAnimationOptionAllowUserInteraction
                   animations:animations
                   completion:completion];
}

@end

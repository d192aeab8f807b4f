// Explicit animations of layers.
#pragma once

#include <QuartzCore/CALayer.h>

typedef double CFTimeInterval;

extern "C" {
extern NSString *const kCAMediaTimingFunctionLinear;
extern NSString *const kCAMediaTimingFunctionEaseIn;
extern NSString *const kCAMediaTimingFunctionEaseOut;
extern NSString *const kCAMediaTimingFunctionEaseInEaseOut;
extern NSString *const kCAFillModeForwards;
extern NSString *const kCAFillModeBackwards;
extern NSString *const kCAFillModeBoth;
extern NSString *const kCAFillModeRemoved;

// The clock of all layers, in seconds.
CFTimeInterval CACurrentMediaTime(void);
}

@interface CAMediaTimingFunction : NSObject {
@public
    void *_timingState;
}
// nil for a name that is none of the constants.
+ (instancetype)functionWithName:(NSString *)name;
@end

// What an animation tells its delegate, when that answers.
@interface NSObject (CAAnimationDelegate)
- (void)animationDidStop:(CAAnimation *)animation finished:(BOOL)finished;
@end

// Times are in seconds.
@interface CAAnimation : NSObject <NSCopying> {
@public
    void *_animationState;
}
+ (instancetype)animation;
@property (nonatomic) CFTimeInterval duration;
@property (nonatomic) CFTimeInterval beginTime;
// HUGE_VALF repeats without end.
@property (nonatomic) float repeatCount;
@property (nonatomic) BOOL autoreverses;
@property (nonatomic, copy) NSString *fillMode;
@property (nonatomic, getter=isRemovedOnCompletion) BOOL removedOnCompletion;
@property (nonatomic, retain) CAMediaTimingFunction *timingFunction;
@property (nonatomic, retain) id delegate;
@end

@interface CAPropertyAnimation : CAAnimation
+ (instancetype)animationWithKeyPath:(NSString *)path;
@property (nonatomic, copy) NSString *keyPath;
@end

// Interpolates between the two values; an absent one stands for the layer's own value.
@interface CABasicAnimation : CAPropertyAnimation
@property (nonatomic, retain) id fromValue;
@property (nonatomic, retain) id toValue;
@end

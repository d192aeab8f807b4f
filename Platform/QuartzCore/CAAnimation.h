// Explicit animations of layers.
#pragma once

#include <QuartzCore/CALayer.h>

typedef double CFTimeInterval;

extern "C" {
extern NSString *const kCAMediaTimingFunctionLinear;
extern NSString *const kCAFillModeForwards;

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

// Times are in seconds.
@interface CAAnimation : NSObject <NSCopying> {
@public
    void *_animationState;
}
+ (instancetype)animation;
@property (nonatomic) CFTimeInterval duration;
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
@end

// Interpolates between the two values; an absent one stands for the layer's own value.
@interface CABasicAnimation : CAPropertyAnimation
@property (nonatomic, retain) id fromValue;
@property (nonatomic, retain) id toValue;
@end

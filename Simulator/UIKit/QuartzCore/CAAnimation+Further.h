// What the platform has beyond <QuartzCore/CAAnimation.h>: used by the simulator and its tests only.
#pragma once

#include <QuartzCore/CAAnimation.h>

// What an animation tells its delegate, when that answers.
@interface NSObject (Further)
- (void)animationDidStop:(CAAnimation *)animation finished:(BOOL)finished;
@end

@interface CAAnimation (Further)
@property (nonatomic) CFTimeInterval beginTime;
@end

@interface CAPropertyAnimation (Further)
@property (nonatomic, copy) NSString *keyPath;
@end

extern "C" {
extern NSString *const kCAMediaTimingFunctionEaseIn;
extern NSString *const kCAMediaTimingFunctionEaseOut;
extern NSString *const kCAMediaTimingFunctionEaseInEaseOut;
extern NSString *const kCAFillModeBackwards;
extern NSString *const kCAFillModeBoth;
extern NSString *const kCAFillModeRemoved;
}

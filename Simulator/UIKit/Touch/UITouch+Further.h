// What the platform has beyond <UIKit/UITouch.h>: used by the simulator and its tests only.
#pragma once

#include <UIKit/UITouch.h>

@interface UITouch (Further)
@property (nonatomic, readonly) UITouchPhase phase;
@property (nonatomic, readonly) NSUInteger tapCount;
// Seconds since the device's start.
@property (nonatomic, readonly) NSTimeInterval timestamp;
- (CGPoint)previousLocationInView:(UIView *)view;
@end

@interface UIEvent (Further)
@property (nonatomic, readonly) NSTimeInterval timestamp;
- (NSSet *)allTouches;
@end

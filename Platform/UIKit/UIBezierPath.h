// Paths as objects.
#pragma once

#include <CoreGraphics/CoreGraphics.h>

@interface UIBezierPath : NSObject {
@public
    void *_pathState;
}
+ (UIBezierPath *)bezierPathWithRect:(CGRect)rect;
// Owned by the path object.
@property (nonatomic, readonly) CGPathRef CGPath;
@end

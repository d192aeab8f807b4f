// The layer that draws a path.
#pragma once

#include <QuartzCore/CALayer.h>

// A path, filled and stroked.
@interface CAShapeLayer : CALayer {
@public
    void *_shapeState;
}
// In the layer's own coordinates. Copied.
@property (nonatomic) CGPathRef path;
@property (nonatomic) CGColorRef fillColor;   // black; nil for none
@property (nonatomic) CGColorRef strokeColor; // none
@property (nonatomic) CGFloat lineWidth;      // points
// The part of the path that is stroked, from 0 to 1 of its length.
@property (nonatomic) CGFloat strokeStart;
@property (nonatomic) CGFloat strokeEnd;
// "butt", "round"; butt.
@property (nonatomic, copy) NSString *lineCap;
@end

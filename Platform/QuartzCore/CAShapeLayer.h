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
@end

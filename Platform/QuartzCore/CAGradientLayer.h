// The layer that draws a gradient.
#pragma once

#include <QuartzCore/CALayer.h>

// A linear gradient over the layer's bounds.
@interface CAGradientLayer : CALayer {
@public
    void *_gradientState;
}
// CGColorRefs.
@property (nonatomic, copy) NSArray *colors;
// Numbers from 0 to 1, one a colour; nil spreads the colours evenly.
@property (nonatomic, copy) NSArray *locations;
// In units of the bounds.
@property (nonatomic) CGPoint startPoint;
@property (nonatomic) CGPoint endPoint;
@end

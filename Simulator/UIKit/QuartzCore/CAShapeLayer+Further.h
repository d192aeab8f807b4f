// What the platform has beyond <QuartzCore/CAShapeLayer.h>: used by the simulator and its tests only.
#pragma once

#include <QuartzCore/CAShapeLayer.h>

@interface CAShapeLayer (Further)
@property (nonatomic) CGColorRef fillColor;   // black; nil for none
@property (nonatomic) CGColorRef strokeColor; // none
@property (nonatomic) CGFloat lineWidth;      // points
// The part of the path that is stroked, from 0 to 1 of its length.
@property (nonatomic) CGFloat strokeStart;
@property (nonatomic) CGFloat strokeEnd;
// "butt", "round"; butt.
@property (nonatomic, copy) NSString *lineCap;
@end

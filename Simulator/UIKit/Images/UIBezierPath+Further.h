// What the platform has beyond <UIKit/UIBezierPath.h>: used by the simulator and its tests only.
#pragma once

#include <UIKit/UIBezierPath.h>

@interface UIBezierPath (Further)
+ (UIBezierPath *)bezierPathWithRoundedRect:(CGRect)rect cornerRadius:(CGFloat)radius;
+ (UIBezierPath *)bezierPathWithOvalInRect:(CGRect)rect;
@end

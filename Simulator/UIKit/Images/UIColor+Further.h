// What the platform has beyond <UIKit/UIColor.h>: used by the simulator and its tests only.
#pragma once

#include <UIKit/UIColor.h>

@interface UIColor (Further)
+ (UIColor *)colorWithCGColor:(CGColorRef)color;
- (UIColor *)colorWithAlphaComponent:(CGFloat)alpha;
- (BOOL)getRed:(CGFloat *)red green:(CGFloat *)green blue:(CGFloat *)blue alpha:(CGFloat *)alpha;
@end

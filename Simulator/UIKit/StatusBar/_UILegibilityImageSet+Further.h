// What the platform has beyond <UIKit/UIStatusBar.h>: used by the simulator and its tests only.
#pragma once

#include <UIKit/UIStatusBar.h>

@interface _UILegibilityImageSet (Further)
+ (instancetype)imageFromImage:(UIImage *)image withShadowImage:(UIImage *)shadow;
@property (nonatomic, retain) UIImage *shadowImage;
@end

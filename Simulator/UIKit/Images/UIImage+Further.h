// What the platform has beyond <UIKit/UIImage.h>: used by the simulator and its tests only.
#pragma once

#include <UIKit/UIImage.h>

@interface UIImage (Further)
+ (UIImage *)imageWithCGImage:(CGImageRef)image;
@property (nonatomic, readonly) UIImageRenderingMode renderingMode;
@property (nonatomic, readonly) UIEdgeInsets capInsets;
@end

extern "C" {
void UIGraphicsBeginImageContextWithOptions(CGSize size, BOOL opaque, CGFloat scale);
UIImage *UIGraphicsGetImageFromCurrentImageContext(void);
}

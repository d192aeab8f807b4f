#pragma once

#include <UIKit/UIColor.h>
#include <UIKit/UIImage.h>

@interface UIImage (UIImageAverageColorAddition)
// The mean of all pixels, opaque. Takes the first three bytes of a pixel as red, green and blue.
- (UIColor *)averageColor;
// The colour of the image shrunk to one pixel, opaque.
- (UIColor *)mergedColor;
@end

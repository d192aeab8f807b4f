#include "Tweak/Core/Support/UIImage+AverageColor.h"

@implementation UIImage (UIImageAverageColorAddition)

- (UIColor *)averageColor {
    CGImageRef image = self.CGImage;
    CFDataRef data = CGDataProviderCopyData(CGImageGetDataProvider(image));
    if (!data) return nil;
    const unsigned char *row = CFDataGetBytePtr(data);
    const size_t height = CGImageGetHeight(image), width = CGImageGetWidth(image);
    const size_t rowBytes = CGImageGetBytesPerRow(image), pixelBytes = CGImageGetBitsPerPixel(image) / 8;
    double red = 0, green = 0, blue = 0;
    for (size_t y = 0; y < height; ++y, row += rowBytes) {
        const unsigned char *pixel = row;
        for (size_t x = 0; x < width; ++x, pixel += pixelBytes) {
            red += pixel[0];
            green += pixel[1];
            blue += pixel[2];
        }
    }
    CFRelease(data);
    const double share = 1 / (static_cast<double>(height) * static_cast<double>(width) * 255);
    return [UIColor colorWithRed:red * share green:green * share blue:blue * share alpha:1];
}

- (UIColor *)mergedColor {
    UIGraphicsBeginImageContext(CGSizeMake(1, 1));
    CGContextRef context = UIGraphicsGetCurrentContext();
    CGContextSetInterpolationQuality(context, kCGInterpolationMedium);
    [self drawInRect:CGRectMake(0, 0, 1, 1) blendMode:kCGBlendModeCopy alpha:1];
    auto *pixel = static_cast<const unsigned char *>(CGBitmapContextGetData(context));
    // Blue comes first in the context's memory.
    UIColor *color = pixel ? [UIColor colorWithRed:pixel[2] / 255.0
                                             green:pixel[1] / 255.0
                                              blue:pixel[0] / 255.0
                                             alpha:1]
                           : nil;
    UIGraphicsEndImageContext();
    return color;
}

@end

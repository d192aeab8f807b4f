// Colours as objects.
#pragma once

#include <CoreGraphics/CoreGraphics.h>

@class UIImage;

// Components run from 0 to 1. The named colours are one object each.
@interface UIColor : NSObject <NSCopying> {
@public
    void *_colorState;
}

+ (UIColor *)colorWithRed:(CGFloat)red green:(CGFloat)green blue:(CGFloat)blue alpha:(CGFloat)alpha;
+ (UIColor *)colorWithWhite:(CGFloat)white alpha:(CGFloat)alpha;
// Tiles the image from the origin of what is painted.
+ (UIColor *)colorWithPatternImage:(UIImage *)image;

+ (UIColor *)blackColor;
+ (UIColor *)whiteColor;
+ (UIColor *)grayColor;
+ (UIColor *)redColor;
+ (UIColor *)greenColor;
+ (UIColor *)blueColor;
+ (UIColor *)cyanColor;
+ (UIColor *)magentaColor;
+ (UIColor *)orangeColor;
+ (UIColor *)purpleColor;
+ (UIColor *)brownColor;
+ (UIColor *)yellowColor;
+ (UIColor *)clearColor;

@property (nonatomic, readonly) CGColorRef CGColor;
@end

// Images: loading, stretching, drawing and making them.
#pragma once

#include <UIKit/UIGeometry.h>

typedef NSInteger UIImageRenderingMode;
enum {
    UIImageRenderingModeAutomatic = 0,
    UIImageRenderingModeAlwaysOriginal = 1,
    // The image's alpha is painted in the tint colour of the view that shows it.
    UIImageRenderingModeAlwaysTemplate = 2
};

typedef NSInteger UIImageOrientation;

@interface UIImage : NSObject {
@public
    void *_imageState;
}

// Looks in the main bundle, or at the path when the name is absolute, for the file of the screen's scale
// first (NAME@2x.png, NAME@3x.png). Cached. nil when there is no such image.
+ (UIImage *)imageNamed:(NSString *)name;
// The file itself; a "@2x" or "@3x" before the extension gives the scale. nil when it cannot be read.
+ (UIImage *)imageWithContentsOfFile:(NSString *)path;

// In points.
@property (nonatomic, readonly) CGSize size;
@property (nonatomic, readonly) CGFloat scale;
@property (nonatomic, readonly) CGImageRef CGImage;

- (UIImage *)imageWithRenderingMode:(UIImageRenderingMode)mode;
// Corners of that size keep theirs, the middle is tiled.
- (UIImage *)resizableImageWithCapInsets:(UIEdgeInsets)insets;
@end

@interface UIImage (Drawing)
// Into the current image context, if there is one; stretched.
- (void)drawInRect:(CGRect)rect;
- (void)drawInRect:(CGRect)rect blendMode:(CGBlendMode)mode alpha:(CGFloat)alpha;
@end

extern "C" {
// nil for a nil image.
NSData *UIImagePNGRepresentation(UIImage *image);

// One pixel a point. Contexts nest; each begin needs its end.
void UIGraphicsBeginImageContext(CGSize size);
CGContextRef UIGraphicsGetCurrentContext(void);
void UIGraphicsEndImageContext(void);
}

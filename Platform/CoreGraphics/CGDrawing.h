// Colours, paths, images and drawing contexts. The references are objects and may stand in collections.
#pragma once

#include <CoreGraphics/CGGeometry.h>

typedef const void *CFTypeRef;
typedef const struct __CFData *CFDataRef;
typedef long CFIndex;
typedef struct CGColor *CGColorRef;
typedef const struct CGPath *CGPathRef;
typedef struct CGImage *CGImageRef;
typedef struct CGContext *CGContextRef;
typedef struct CGDataProvider *CGDataProviderRef;

typedef int CGInterpolationQuality; // int in size; 0 default … 3 high, 4 medium
typedef int CGBlendMode;            // int in size
enum { kCGInterpolationMedium = 4 };
enum { kCGBlendModeNormal = 0, kCGBlendModeCopy = 17 };

extern "C" {

void CFRelease(CFTypeRef object);
const unsigned char *CFDataGetBytePtr(CFDataRef data);
CFIndex CFDataGetLength(CFDataRef data);

// Size in pixels.
size_t CGImageGetWidth(CGImageRef image);
size_t CGImageGetHeight(CGImageRef image);
size_t CGImageGetBytesPerRow(CGImageRef image);
size_t CGImageGetBitsPerPixel(CGImageRef image);
// Not owned by the caller; nil for a nil image.
CGDataProviderRef CGImageGetDataProvider(CGImageRef image);
// Owned by the caller.
CFDataRef CGDataProviderCopyData(CGDataProviderRef provider);

void CGContextSetInterpolationQuality(CGContextRef context, CGInterpolationQuality quality);
// The pixels of a bitmap context; blue, green, red, alpha in memory order. Null for a nil context.
void *CGBitmapContextGetData(CGContextRef context);
}

#include "UIKit/CoreGraphics/CGObjects.h"
#include "CGDrawing+Further.h"
#include "CGGeometry+Further.h"

#include <UIKit/UIColor.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdio>

@implementation SimCGColor
@end

@implementation SimCGPath
@end

@implementation SimCGImage
@end

@implementation SimCGContext
@end

namespace sim {

render::Rgba flatColor(const render::Paint &paint) {
    auto *color = std::get_if<render::Rgba>(&paint);
    return color ? *color : render::Rgba{};
}

std::string colorText(const render::Rgba &color) {
    auto byte = [](double component) {
        return static_cast<unsigned>(std::lround(std::clamp(component, 0.0, 1.0) * 255));
    };
    char text[16];
    snprintf(text, sizeof text, "#%02x%02x%02x%02x", byte(color.red), byte(color.green), byte(color.blue),
             byte(color.alpha));
    return text;
}

} // namespace sim

namespace {
NSObject *object(CFTypeRef reference) { return static_cast<NSObject *>(const_cast<void *>(reference)); }
NSData *object(CFDataRef data) { return reinterpret_cast<NSData *>(const_cast<__CFData *>(data)); }

// A premultiplied pixel as red, green, blue, alpha in memory, straight.
uint32_t redFirst(uint32_t pixel) {
    uint32_t alpha = pixel >> 24;
    if (alpha == 0) return 0;
    if (alpha == 0xff) return std::rotr(__builtin_bswap32(pixel), 8);
    auto straight = [&](int shift) {
        uint32_t component = pixel >> shift & 0xff;
        return std::min((component * 255 + alpha / 2) / alpha, 255u);
    };
    return alpha << 24 | straight(0) << 16 | straight(8) << 8 | straight(16);
}
} // namespace

extern "C" {

void CFRelease(CFTypeRef reference) { [object(reference) release]; }
CFTypeRef CFRetain(CFTypeRef reference) { return [object(reference) retain]; }
const unsigned char *CFDataGetBytePtr(CFDataRef data) {
    return static_cast<const unsigned char *>([object(data) bytes]);
}
CFIndex CFDataGetLength(CFDataRef data) { return static_cast<CFIndex>([object(data) length]); }

CGPathRef CGPathCreateWithRect(CGRect rect, const CGAffineTransform *transform) {
    SimCGPath *path = [SimCGPath new];
    path->path = render::Path::rect(sim::toRender(rect));
    if (transform) {
        for (auto &element : path->path.elements) {
            for (auto &point : element.points) {
                CGPoint moved = CGPointApplyAffineTransform({point.x, point.y}, *transform);
                point = {moved.x, moved.y};
            }
        }
    }
    return sim::reference(path);
}

void CGPathRelease(CGPathRef path) { [sim::object(path) release]; }

size_t CGImageGetWidth(CGImageRef image) {
    return image ? static_cast<size_t>(sim::object(image)->bitmap->width) : 0;
}
size_t CGImageGetHeight(CGImageRef image) {
    return image ? static_cast<size_t>(sim::object(image)->bitmap->height) : 0;
}
size_t CGImageGetBytesPerRow(CGImageRef image) { return CGImageGetWidth(image) * 4; }
size_t CGImageGetBitsPerPixel(CGImageRef image) { return image ? 32 : 0; }
CGDataProviderRef CGImageGetDataProvider(CGImageRef image) {
    return reinterpret_cast<CGDataProviderRef>(image);
}

CFDataRef CGDataProviderCopyData(CGDataProviderRef provider) {
    if (!provider) return nullptr;
    auto *image = reinterpret_cast<SimCGImage *>(provider);
    const auto &pixels = image->bitmap->pixels;
    const size_t length = pixels.size() * sizeof(uint32_t);
    if (image->fromContext)
        return reinterpret_cast<CFDataRef>([[NSData alloc] initWithBytes:pixels.data() length:length]);
    NSMutableData *data = [[NSMutableData alloc] initWithLength:length];
    std::transform(pixels.begin(), pixels.end(), static_cast<uint32_t *>([data mutableBytes]), redFirst);
    return reinterpret_cast<CFDataRef>(data);
}

void CGContextSetInterpolationQuality(CGContextRef, CGInterpolationQuality) {
    // Every quality averages the pixels here.
}

void *CGBitmapContextGetData(CGContextRef context) {
    return context ? sim::object(context)->bitmap.pixels.data() : nullptr;
}

} // extern "C"

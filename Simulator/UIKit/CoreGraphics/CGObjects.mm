#include "UIKit/CoreGraphics/CGObjects.h"
#include "CGDrawing+Further.h"
#include "CGGeometry+Further.h"

#include <UIKit/UIColor.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>

@implementation SimCGColor
@end

@implementation SimCGPath
@end

@implementation SimCGImage

- (void)dealloc {
    [straightPixels release];
    [super dealloc];
}

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

// Four pixels at a time.
using Pixels [[gnu::vector_size(16)]] = uint32_t;

// Red and blue change places, of one pixel or of four.
template <typename Word>
Word swapped(Word pixel) {
    return (pixel & 0xff00ff00u) | (pixel & 0xffu) << 16 | (pixel >> 16 & 0xffu);
}

// A premultiplied pixel as red, green, blue, alpha in memory, straight.
uint32_t redFirst(uint32_t pixel) {
    uint32_t alpha = pixel >> 24;
    if (alpha == 0) return 0;
    if (alpha == 0xff) return swapped(pixel);
    auto straight = [&](int shift) {
        uint32_t component = pixel >> shift & 0xff;
        return std::min((component * 255 + alpha / 2) / alpha, 255u);
    };
    return alpha << 24 | straight(0) << 16 | straight(8) << 8 | straight(16);
}

// Most pixels of most pictures are opaque: those are turned sixteen at a time.
void allRedFirst(const std::vector<uint32_t> &pixels, uint32_t *to) {
    constexpr size_t kBlock = 16;
    Pixels block[kBlock / 4];
    size_t i = 0;
    for (; i + kBlock <= pixels.size(); i += kBlock) {
        const uint32_t *from = pixels.data() + i;
        memcpy(block, from, sizeof block);
        Pixels common = block[0] & block[1] & block[2] & block[3];
        if ((common[0] & common[1] & common[2] & common[3]) >> 24 == 0xff) {
            for (Pixels &four : block) four = swapped(four);
            memcpy(to + i, block, sizeof block);
        } else {
            std::transform(from, from + kBlock, to + i, redFirst);
        }
    }
    std::transform(pixels.begin() + static_cast<std::ptrdiff_t>(i), pixels.end(), to + i, redFirst);
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
    if (!image->straightPixels) {
        NSMutableData *data = [[NSMutableData alloc] initWithLength:length];
        allRedFirst(pixels, static_cast<uint32_t *>([data mutableBytes]));
        image->straightPixels = data;
    }
    return reinterpret_cast<CFDataRef>([image->straightPixels retain]);
}

void CGContextSetInterpolationQuality(CGContextRef, CGInterpolationQuality) {
    // Every quality averages the pixels here.
}

void *CGBitmapContextGetData(CGContextRef context) {
    return context ? sim::object(context)->bitmap.pixels.data() : nullptr;
}

} // extern "C"

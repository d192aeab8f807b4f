// What stands behind the CoreGraphics references: objects, so that CFRetain, CFRelease and collections work.
#pragma once

#import <Foundation/Foundation.h>

#include "Render/DisplayList.hpp"

#include <CoreGraphics/CoreGraphics.h>

@class UIColor;

@interface SimCGColor : NSObject {
@public
    render::Paint paint;
    // The colour object that it was made for; not retained, cleared when that one goes.
    UIColor *owner;
}
@end

@interface SimCGPath : NSObject {
@public
    render::Path path;
}
@end

// Both the image and its data provider.
@interface SimCGImage : NSObject {
@public
    render::BitmapRef bitmap;
    // Pixels of a drawing context are handed out as they lie in memory (blue first, premultiplied), those of
    // a decoded file as red, green, blue and straight alpha.
    BOOL fromContext;
    // The latter, once somebody has asked for them; retained. An image never changes.
    NSData *straightPixels;
}
@end

@interface SimCGContext : NSObject {
@public
    render::Bitmap bitmap;
}
@end

namespace sim {

inline SimCGColor *object(CGColorRef color) { return reinterpret_cast<SimCGColor *>(color); }
inline SimCGPath *object(CGPathRef path) { return reinterpret_cast<SimCGPath *>(const_cast<CGPath *>(path)); }
inline SimCGImage *object(CGImageRef image) { return reinterpret_cast<SimCGImage *>(image); }
inline SimCGContext *object(CGContextRef context) { return reinterpret_cast<SimCGContext *>(context); }

inline CGColorRef reference(SimCGColor *color) { return reinterpret_cast<CGColorRef>(color); }
inline CGPathRef reference(SimCGPath *path) { return reinterpret_cast<CGPathRef>(path); }
inline CGImageRef reference(SimCGImage *image) { return reinterpret_cast<CGImageRef>(image); }

// The flat colour of a paint; of a pattern, clear.
render::Rgba flatColor(const render::Paint &paint);
// "#rrggbbaa" in lower case.
std::string colorText(const render::Rgba &color);

inline render::Point toRender(CGPoint point) { return {point.x, point.y}; }
inline render::Size toRender(CGSize size) { return {size.width, size.height}; }
inline render::Rect toRender(CGRect rect) {
    return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}
inline render::Affine toRender(CGAffineTransform t) { return {t.a, t.b, t.c, t.d, t.tx, t.ty}; }

} // namespace sim

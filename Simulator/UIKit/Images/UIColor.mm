#include "UIColor+Further.h"
#include "UIKit/CoreGraphics/CGObjects.h"

#include <UIKit/UIColor.h>
#include <UIKit/UIImage.h>

namespace {

SimCGColor *color(UIColor *object) { return static_cast<SimCGColor *>(object->_colorState); }

UIColor *makeColor(const render::Paint &paint) {
    UIColor *object = [UIColor new];
    SimCGColor *backing = [SimCGColor new];
    backing->paint = paint;
    backing->owner = object;
    object->_colorState = backing;
    return object;
}

// One object a named colour, for the life of the process.
UIColor *named(UIColor *&slot, double red, double green, double blue, double alpha = 1) {
    if (!slot) slot = makeColor(render::Rgba{red, green, blue, alpha});
    return slot;
}

} // namespace

@implementation UIColor

+ (UIColor *)colorWithRed:(CGFloat)red green:(CGFloat)green blue:(CGFloat)blue alpha:(CGFloat)alpha {
    return [makeColor(render::Rgba{red, green, blue, alpha}) autorelease];
}

+ (UIColor *)colorWithWhite:(CGFloat)white alpha:(CGFloat)alpha {
    return [self colorWithRed:white green:white blue:white alpha:alpha];
}

+ (UIColor *)colorWithPatternImage:(UIImage *)image {
    CGImageRef bitmap = [image CGImage];
    if (!bitmap) return nil;
    return [makeColor(render::Pattern{sim::object(bitmap)->bitmap}) autorelease];
}

+ (UIColor *)colorWithCGColor:(CGColorRef)reference {
    if (!reference) return nil;
    SimCGColor *backing = sim::object(reference);
    if (backing->owner) return [[backing->owner retain] autorelease];
    UIColor *object = [UIColor new];
    object->_colorState = [backing retain];
    backing->owner = object;
    return [object autorelease];
}

- (void)dealloc {
    if (SimCGColor *backing = color(self)) {
        backing->owner = nil;
        [backing release];
    }
    [super dealloc];
}

- (id)copyWithZone:(NSZone *)zone {
    return [self retain];
}

#define NAMED(name, ...)                                                                                     \
    +(UIColor *)name {                                                                                       \
        static UIColor *shared;                                                                              \
        return named(shared, __VA_ARGS__);                                                                   \
    }
NAMED(blackColor, 0, 0, 0)
NAMED(whiteColor, 1, 1, 1)
NAMED(grayColor, 0.5, 0.5, 0.5)
NAMED(redColor, 1, 0, 0)
NAMED(greenColor, 0, 1, 0)
NAMED(blueColor, 0, 0, 1)
NAMED(cyanColor, 0, 1, 1)
NAMED(magentaColor, 1, 0, 1)
NAMED(orangeColor, 1, 0.5, 0)
NAMED(purpleColor, 0.5, 0, 0.5)
NAMED(brownColor, 0.6, 0.4, 0.2)
NAMED(yellowColor, 1, 1, 0)
NAMED(clearColor, 0, 0, 0, 0)
#undef NAMED

- (UIColor *)colorWithAlphaComponent:(CGFloat)alpha {
    render::Rgba flat = sim::flatColor(color(self)->paint);
    return [UIColor colorWithRed:flat.red green:flat.green blue:flat.blue alpha:alpha];
}

- (BOOL)getRed:(CGFloat *)red green:(CGFloat *)green blue:(CGFloat *)blue alpha:(CGFloat *)alpha {
    auto *flat = std::get_if<render::Rgba>(&color(self)->paint);
    if (!flat) return NO;
    if (red) *red = flat->red;
    if (green) *green = flat->green;
    if (blue) *blue = flat->blue;
    if (alpha) *alpha = flat->alpha;
    return YES;
}

- (BOOL)isEqual:(id)other {
    return [other isKindOfClass:[UIColor class]] &&
           color(self)->paint == color(static_cast<UIColor *>(other))->paint;
}

- (NSUInteger)hash {
    render::Rgba flat = sim::flatColor(color(self)->paint);
    return static_cast<NSUInteger>(flat.red * 251 + flat.green * 63001 + flat.blue * 15813251);
}

- (CGColorRef)CGColor {
    return sim::reference(color(self));
}

@end

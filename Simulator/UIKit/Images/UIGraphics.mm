#include "ImageState.h"

#include "Render/Renderer.hpp"
#include "Runtime/Process/Device.hpp"
#include "UIImage+Further.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

// The open contexts, innermost last; each retained.
std::vector<SimCGContext *> &contexts() {
    static std::vector<SimCGContext *> open;
    return open;
}

void draw(UIImage *image, CGRect rect, bool replace, CGFloat alpha) {
    if (contexts().empty()) return;
    render::drawBitmap(contexts().back()->bitmap, *sim::state(image).image->bitmap, sim::toRender(rect),
                       replace, alpha);
}

} // namespace

extern "C" {

void UIGraphicsBeginImageContextWithOptions(CGSize size, BOOL opaque, CGFloat scale) {
    if (scale == 0) scale = sim::device().scale;
    SimCGContext *context = [SimCGContext new];
    context->bitmap = render::Bitmap(static_cast<int>(std::ceil(size.width * scale)),
                                     static_cast<int>(std::ceil(size.height * scale)), scale);
    if (opaque) std::fill(context->bitmap.pixels.begin(), context->bitmap.pixels.end(), 0xff000000u);
    contexts().push_back(context);
}

void UIGraphicsBeginImageContext(CGSize size) { UIGraphicsBeginImageContextWithOptions(size, NO, 1); }

CGContextRef UIGraphicsGetCurrentContext(void) {
    return contexts().empty() ? nullptr : reinterpret_cast<CGContextRef>(contexts().back());
}

UIImage *UIGraphicsGetImageFromCurrentImageContext(void) {
    if (contexts().empty()) return nil;
    UIImage *image = sim::makeImage(std::make_shared<render::Bitmap>(contexts().back()->bitmap));
    sim::object([image CGImage])->fromContext = YES;
    return image;
}

void UIGraphicsEndImageContext(void) {
    if (contexts().empty()) return;
    [contexts().back() autorelease];
    contexts().pop_back();
}

NSData *UIImagePNGRepresentation(UIImage *image) {
    if (!image) return nil;
    std::string bytes = render::encodePng(*sim::state(image).image->bitmap);
    return [NSData dataWithBytes:bytes.data() length:bytes.size()];
}

} // extern "C"

@implementation UIImage (Drawing)

- (void)drawInRect:(CGRect)rect {
    draw(self, rect, false, 1);
}

- (void)drawInRect:(CGRect)rect blendMode:(CGBlendMode)mode alpha:(CGFloat)alpha {
    draw(self, rect, mode == kCGBlendModeCopy, alpha);
}

@end

#include "ImageState.h"
#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Objc/Ownership.h"
#include "UIKit/CoreGraphics/CGGeometry+Further.h"
#include "UIKit/Views/ViewState.h"

#include <UIKit/UIImageView.h>

#include <algorithm>

namespace {

struct ImageViewState {
    UIImage *image = nil;
};

ImageViewState &state(UIImageView *view) { return sim::lazyState<ImageViewState>(view->_imageViewState); }

// Where content of that size goes within the bounds.
CGRect place(CGSize size, CGRect bounds, UIViewContentMode mode) {
    CGSize room = bounds.size;
    if (mode == UIViewContentModeScaleToFill || mode == UIViewContentModeRedraw) return bounds;
    if (mode == UIViewContentModeScaleAspectFit || mode == UIViewContentModeScaleAspectFill) {
        if (size.width <= 0 || size.height <= 0) return {bounds.origin, CGSizeZero};
        CGFloat across = room.width / size.width, down = room.height / size.height;
        CGFloat factor =
            mode == UIViewContentModeScaleAspectFit ? std::min(across, down) : std::max(across, down);
        size = {size.width * factor, size.height * factor};
    }
    // -1 left or top, 0 centre, 1 right or bottom.
    static constexpr int horizontal[] = {0, 0, 0, 0, 0, 0, 0, -1, 1, -1, 1, -1, 1};
    static constexpr int vertical[] = {0, 0, 0, 0, 0, -1, 1, 0, 0, -1, -1, 1, 1};
    return {{bounds.origin.x + (room.width - size.width) * (horizontal[mode] + 1) / 2,
             bounds.origin.y + (room.height - size.height) * (vertical[mode] + 1) / 2},
            size};
}

} // namespace

@implementation UIImageView

- (instancetype)initWithFrame:(CGRect)frame {
    if ((self = [super initWithFrame:frame])) [self setUserInteractionEnabled:NO];
    return self;
}

- (instancetype)initWithImage:(UIImage *)image {
    CGRect frame = {CGPointZero, image ? [image size] : CGSizeZero};
    if ((self = [self initWithFrame:frame])) [self setImage:image];
    return self;
}

- (void)dealloc {
    [state(self).image release];
    delete &state(self);
    [super dealloc];
}

- (UIImage *)image {
    return state(self).image;
}
- (void)setImage:(UIImage *)image {
    sim::retainInto(state(self).image, image);
}

- (CGSize)sizeThatFits:(CGSize)size {
    return state(self).image ? [state(self).image size] : CGSizeZero;
}

- (void)appendDrawingsTo:(render::Node &)node {
    UIImage *image = state(self).image;
    if (!image) return;
    const auto &source = sim::state(image);
    CGRect bounds = {{node.bounds.x, node.bounds.y}, {node.bounds.width, node.bounds.height}};
    render::Image drawing{.bitmap = source.image->bitmap,
                          .rect = sim::toRender(place([image size], bounds, [self contentMode])),
                          .caps = {source.caps.top, source.caps.left, source.caps.bottom, source.caps.right},
                          .tint = {}};
    if (source.mode == UIImageRenderingModeAlwaysTemplate)
        drawing.tint = sim::flatColor(sim::object([[self tintColor] CGColor])->paint);
    node.drawings.push_back(std::move(drawing));
}

@end

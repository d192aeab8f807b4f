#include "IconImages.h"
#include "Icons.h"

#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Objc/Ownership.h"
#include "UIKit/Images/ImageState.h"
#include "UIKit/Views/ViewState.h"

#include <cmath>

namespace {

struct ImageViewState {
    SBIcon *icon = nil; // retained
    bool highlighted = false;
};

ImageViewState &contents(SBIconImageView *view) {
    return sim::lazyState<ImageViewState>(view->_iconImageViewState);
}

void draw(render::Node &node, UIImage *image, const render::Rect &rect,
          std::optional<render::Rgba> tint = {}) {
    if (!image) return;
    node.drawings.push_back(
        render::Image{.bitmap = sim::state(image).image->bitmap, .rect = rect, .caps = {}, .tint = tint});
}

constexpr render::Rgba kPressed{0, 0, 0, 0.45};

// A line from the middle of the dial; `turn` is a share of a full turn from twelve o'clock on.
render::Shape hand(const render::Rect &dial, double turn, double length, double tail, double width,
                   const render::Rgba &color) {
    double x = std::sin(turn * 2 * M_PI), y = -std::cos(turn * 2 * M_PI);
    double side = dial.width, cx = dial.x + side / 2, cy = dial.y + side / 2;
    using Verb = render::PathElement::Verb;
    render::Path line;
    line.elements.push_back({Verb::move, {{cx - x * tail * side, cy - y * tail * side}, {}, {}}});
    line.elements.push_back({Verb::line, {{cx + x * length * side, cy + y * length * side}, {}, {}}});
    return {.path = line, .fill = {}, .stroke = color, .strokeWidth = width * side, .roundCaps = true};
}

} // namespace

@implementation SBIconImageView

- (instancetype)initWithFrame:(CGRect)frame {
    if ((self = [super initWithFrame:frame])) {
        [self setUserInteractionEnabled:NO];
        [self setOpaque:NO];
    }
    return self;
}

- (void)dealloc {
    [contents(self).icon release];
    delete &contents(self);
    [super dealloc];
}

- (UIImage *)contentsImage {
    SBIcon *icon = contents(self).icon;
    return icon ? sim::iconImage(sim::state(icon).application) : nil;
}

- (void)appendDrawingsTo:(render::Node &)node {
    draw(node, [self contentsImage], node.bounds);
    if (contents(self).highlighted) draw(node, sim::iconShape(), node.bounds, kPressed);
}

@end

@implementation SBIconImageView (Simulator)

- (void)setIcon:(SBIcon *)icon {
    sim::retainInto(contents(self).icon, icon);
}

- (void)setHighlighted:(BOOL)highlighted {
    contents(self).highlighted = highlighted;
}

@end

@implementation SBClockApplicationIconImageView

// The hands stand as the device's clock does at the moment of drawing; the image itself has none.
- (void)appendDrawingsTo:(render::Node &)node {
    constexpr double kMinute = 60, kHour = 3600, kHalfDay = 12 * kHour;
    constexpr render::Rgba kBlack{0.07, 0.07, 0.07, 1}, kRed{1, 0.23, 0.19, 1};
    double second = std::fmod([[NSDate date] timeIntervalSince1970], kHalfDay);
    draw(node, [self contentsImage], node.bounds);
    node.drawings.push_back(hand(node.bounds, second / kHalfDay, 0.21, 0.03, 0.03, kBlack));
    node.drawings.push_back(hand(node.bounds, std::fmod(second, kHour) / kHour, 0.33, 0.03, 0.03, kBlack));
    node.drawings.push_back(hand(node.bounds, std::fmod(second, kMinute) / kMinute, 0.35, 0.07, 0.012, kRed));
    if (contents(self).highlighted) draw(node, sim::iconShape(), node.bounds, kPressed);
}

@end

@implementation SBFolderIconImageView

// A folder shows what it holds, not an image of its own.
- (UIImage *)contentsImage {
    return nil;
}

// Three by three miniatures on frosted glass.
- (void)appendDrawingsTo:(render::Node &)node {
    constexpr size_t kAcross = 3;
    constexpr double kMargin = 0.125, kGap = 0.055;
    constexpr render::Rgba kGlass{1, 1, 1, 0.32};
    double side = node.bounds.width, mini = (1 - 2 * kMargin - (kAcross - 1) * kGap) / kAcross * side;
    draw(node, sim::iconShape(), node.bounds, kGlass);
    const auto &icons = sim::iconsInFolder(contents(self).icon);
    for (size_t i = 0; i < icons.size() && i < kAcross * kAcross; ++i) {
        double x = kMargin * side + static_cast<double>(i % kAcross) * (mini + kGap * side);
        double y = kMargin * side + static_cast<double>(i / kAcross) * (mini + kGap * side);
        draw(node, sim::iconImage(sim::state(icons[i]).application), {x, y, mini, mini});
    }
    if (contents(self).highlighted) draw(node, sim::iconShape(), node.bounds, kPressed);
}

@end

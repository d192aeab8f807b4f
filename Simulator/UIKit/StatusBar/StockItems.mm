#include "StockItems.h"

#include "StatusBarData.hpp"
#include "StatusBarGlyphs.hpp"
#include "UIKit/Materials/DrawnImage.h"

#include <map>

namespace {

_UILegibilityImageSet *drawn(UIStatusBarItemView *view, sim::Glyph (*draw)(int, const std::string &),
                             int value) {
    static auto &images = *new std::map<std::string, UIImage *>; // by drawing; few
    sim::Glyph glyph = draw(value, sim::svgColor([[view foregroundStyle] tintColor]));
    UIImage *&image = images[glyph.svg];
    if (!image) image = [sim::drawnImage(glyph.svg, {glyph.width, glyph.height}) retain];
    return [view imageFromImage:image];
}

_UILegibilityImageSet *written(UIStatusBarItemView *view, const std::string &text) {
    return [view imageWithText:[NSString stringWithUTF8String:text.c_str()]];
}

} // namespace

@implementation UIStatusBarSignalStrengthItemView
- (_UILegibilityImageSet *)contentsImage {
    return drawn(self, sim::signalGlyph, sim::statusBarData().signalBars);
}
@end

@implementation UIStatusBarServiceItemView
- (_UILegibilityImageSet *)contentsImage {
    return written(self, sim::statusBarData().carrier);
}
@end

@implementation UIStatusBarDataNetworkItemView
- (_UILegibilityImageSet *)contentsImage {
    return drawn(self, sim::wifiGlyph, sim::statusBarData().wifiBars);
}
@end

@implementation UIStatusBarTimeItemView
- (_UILegibilityImageSet *)contentsImage {
    return written(self, sim::statusBarTime());
}
@end

@implementation UIStatusBarBatteryPercentItemView
- (_UILegibilityImageSet *)contentsImage {
    return written(self, std::to_string(sim::statusBarData().batteryLevel) + "%");
}
@end

@implementation UIStatusBarBatteryItemView
- (_UILegibilityImageSet *)contentsImage {
    return drawn(self, sim::batteryGlyph, sim::statusBarData().batteryLevel);
}
@end

namespace sim {

std::vector<UIStatusBarItem *> stockStatusBarItems() {
    using enum StatusBarSide;
    // The numbers of the types are inferred.
    const StatusBarItemState items[] = {
        {3, nullptr, {left, 0, 0, 0}, [UIStatusBarSignalStrengthItemView class]},
        {4, nullptr, {left, 1, 0, 5}, [UIStatusBarServiceItemView class]},
        {5, nullptr, {left, 2, 0, 5}, [UIStatusBarDataNetworkItemView class]},
        {0, nullptr, {center, 0, 0, 0}, [UIStatusBarTimeItemView class]},
        {7, nullptr, {right, 0, 0, 0}, [UIStatusBarBatteryItemView class]},
        {8, nullptr, {right, 1, 0, 3.5}, [UIStatusBarBatteryPercentItemView class]},
    };
    constexpr int kSignalStrength = 3;
    std::vector<UIStatusBarItem *> result;
    for (const auto &item : items)
        if (item.type != kSignalStrength || statusBarData().signalBars > 0)
            result.push_back(makeStatusBarItem(item));
    return result;
}

} // namespace sim

// The plain views of the home screen.
#include "HomeViews.h"

#include "Render/Bitmap.hpp"
#include "Runtime/Files/PlatformFiles.hpp"
#include "Runtime/Process/Device.hpp"
#include "UIKit/Views/ViewState.h"

#include <algorithm>

namespace {

// Decoded when it is first drawn: most processes are never looked at. nullptr without a file.
render::BitmapRef wallpaper() {
    static const render::BitmapRef bitmap = [] {
        int scale = static_cast<int>(sim::device().scale);
        std::string suffix = scale > 1 ? "@" + std::to_string(scale) + "x" : "";
        auto bytes = sim::readPlatformFile("Wallpapers/dusk" + suffix + ".png");
        return bytes ? render::decodePng(*bytes, scale) : nullptr;
    }();
    return bitmap;
}

// As large as it takes to leave no edge of `room` free.
render::Rect filling(const render::Bitmap &bitmap, const render::Rect &room) {
    double factor = std::max(room.width / bitmap.width, room.height / bitmap.height);
    double width = bitmap.width * factor, height = bitmap.height * factor;
    return {room.x + (room.width - width) / 2, room.y + (room.height - height) / 2, width, height};
}

} // namespace

@implementation SBWallpaperView

- (instancetype)initWithFrame:(CGRect)frame {
    if ((self = [super initWithFrame:frame])) {
        [self setUserInteractionEnabled:NO];
        [self setClipsToBounds:YES];
    }
    return self;
}

- (void)appendDrawingsTo:(render::Node &)node {
    if (auto bitmap = wallpaper()) {
        node.drawings.push_back(
            render::Image{.bitmap = bitmap, .rect = filling(*bitmap, node.bounds), .caps = {}, .tint = {}});
        return;
    }
    node.gradient = render::Gradient{
        {{0.11, 0.17, 0.34, 1}, {0.35, 0.3, 0.5, 1}, {0.62, 0.42, 0.47, 1}}, {0, 0.6, 1}, {0.3, 0}, {0.7, 1}};
}

@end

@implementation SBRootIconListView
@end

@implementation SBIconScrollView
@end

@implementation SBDockView
@end

@implementation SBIconListPageControl

- (void)appendDrawingsTo:(render::Node &)node {
    constexpr double kSide = 7, kPitch = 16;
    double left = (node.bounds.width - static_cast<double>(_pages - 1) * kPitch - kSide) / 2;
    for (size_t i = 0; i < _pages; ++i) {
        render::Rect dot{left + static_cast<double>(i) * kPitch, (node.bounds.height - kSide) / 2, kSide,
                         kSide};
        node.drawings.push_back(render::Shape{.path = render::Path::oval(dot),
                                              .fill = render::Rgba{1, 1, 1, i == _current ? 1 : 0.4},
                                              .stroke = {}});
    }
}

@end

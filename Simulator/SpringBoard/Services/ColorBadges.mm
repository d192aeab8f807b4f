#include "ColorBadges.h"

#include "Runtime/Objc/Availability.hpp"
#include "SpringBoard/Icons/IconImages.h"
#include "SpringBoard/Icons/Icons.h"

#include <ColorBadges/ColorBadges.h>

#include <cmath>

namespace {

bool enabled = false, borders = false;

} // namespace

namespace sim {

void installColorBadges(const SharedOptions &options) {
    if (!options.colorBadges) hideClass("ColorBadges");
    auto badges = options.colorBadges.value_or(ColorBadgeOptions{.borders = false});
    enabled = badges.enabled;
    borders = badges.borders;
}

} // namespace sim

@implementation ColorBadges

+ (instancetype)sharedInstance {
    static ColorBadges *badges = [self new];
    return badges;
}

+ (BOOL)isEnabled {
    return enabled;
}

+ (BOOL)areBordersEnabled {
    return borders;
}

// By how bright the eye finds it.
+ (BOOL)isDarkColor:(int)color {
    constexpr double kHalf = 127.5;
    return 0.299 * (color >> 16 & 0xff) + 0.587 * (color >> 8 & 0xff) + 0.114 * (color & 0xff) < kHalf;
}

// The icon's own mean colour; the stock red for a folder.
- (int)colorForIcon:(id)icon {
    constexpr int kRed = 0xff3b30;
    SBApplication *application = sim::state(static_cast<SBIcon *>(icon)).application;
    if (!application) return kRed;
    render::Rgba mean = sim::meanIconColor(application);
    int color = 0;
    for (double part : {mean.red, mean.green, mean.blue})
        color = color << 8 | static_cast<int>(std::lround(part * 255));
    return color;
}

@end

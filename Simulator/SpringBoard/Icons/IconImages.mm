#include "IconImages.h"

#include "Icons.h"
#include "UIKit/Images/ImageState.h"

#include <map>

namespace sim {

namespace {

const render::Bitmap &pixels(UIImage *image) { return *state(image).image->bitmap; }

} // namespace

UIImage *iconImage(SBApplication *application) {
    static auto &images = *new std::map<SBApplication *, UIImage *>; // for the life of the process
    if (!application) return nil;
    UIImage *&image = images[application];
    const auto &known = record(application);
    if (!image) image = [drawApplicationIcon({known.identifier, known.name, known.icon}) retain];
    return image;
}

render::Rgba meanIconColor(SBApplication *application) {
    uint64_t sums[3] = {}, weight = 0;
    UIImage *image = iconImage(application);
    if (!image) return {0.5, 0.5, 0.5, 1};
    for (uint32_t pixel : pixels(image).pixels) {
        weight += pixel >> 24;
        for (int i = 0; i < 3; ++i) sums[i] += pixel >> (8 * i) & 0xff;
    }
    auto share = [&](uint64_t sum) {
        return weight ? static_cast<double>(sum) / static_cast<double>(weight) : 0;
    };
    return {share(sums[2]), share(sums[1]), share(sums[0]), 1};
}

} // namespace sim

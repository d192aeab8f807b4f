#include "FilmStrip.hpp"

#include "Render/Renderer.hpp"

#include <algorithm>
#include <cmath>

namespace sim {

render::Bitmap filmStrip(const std::vector<render::Bitmap> &frames) {
    constexpr double kGap = 8;
    constexpr uint32_t kGround = 0xff8e8e93;
    const auto &first = frames.front();
    int count = static_cast<int>(frames.size());
    int gap = static_cast<int>(std::lround(kGap * first.scale));
    render::Bitmap strip(first.width * count + gap * (count - 1), first.height, first.scale);
    std::ranges::fill(strip.pixels, kGround);
    int x = 0;
    for (const auto &frame : frames) {
        render::place(strip, frame, x, 0);
        x += frame.width + gap;
    }
    return strip;
}

} // namespace sim

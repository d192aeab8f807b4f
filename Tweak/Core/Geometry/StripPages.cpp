#include "Tweak/Core/Geometry/StripPages.hpp"

#include <algorithm>
#include <cmath>

namespace pendix {

namespace {

constexpr Real kTolerance = 1;
constexpr Real kBounce = 1; // the content is wider than the strip by this at least

Real step(const StripExtent &strip) {
    return std::max<Real>(strip.paging ? strip.width : strip.width - strip.gap, 1);
}

Real lastOffset(const StripExtent &strip) { return std::max<Real>(strip.content - strip.width, 0); }

} // namespace

StripPage stripPage(const StripExtent &strip) {
    const Real end = strip.paging ? 0 : strip.gap;
    const Real pages = std::ceil((strip.content - end - kBounce - kTolerance) / step(strip));
    const int count = std::max(static_cast<int>(pages), 1);
    const bool atEnd = strip.offset >= lastOffset(strip) - kTolerance;
    const int number = static_cast<int>(std::round(strip.offset / step(strip))) + 1;
    return {atEnd ? count : std::clamp(number, 1, count), count};
}

Real nextPage(const StripExtent &strip) {
    if (lastOffset(strip) <= kBounce) return strip.offset;
    const Real page = std::floor((strip.offset + kTolerance) / step(strip)) + 1;
    return std::max(strip.offset, std::min(page * step(strip), lastOffset(strip)));
}

Real previousPage(const StripExtent &strip) {
    const Real page = std::ceil((strip.offset - kTolerance) / step(strip)) - 1;
    return std::min(strip.offset, std::max<Real>(page * step(strip), 0));
}

bool isSeen(const StripExtent &strip, Real x, Real width) {
    return x >= strip.offset - kTolerance && x + width <= strip.offset + strip.width + kTolerance;
}

} // namespace pendix

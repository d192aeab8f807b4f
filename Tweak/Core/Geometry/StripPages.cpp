#include "Tweak/Core/Geometry/StripPages.hpp"

#include <algorithm>

namespace pendix {

namespace {

constexpr Real kTolerance = 1, kHalf = 0.5;
constexpr Real kBounce = 1; // the content is wider than the strip by this at least

Real step(const StripExtent &strip) {
    return std::max<Real>(strip.paging ? strip.width : strip.width - strip.gap, 1);
}

// How many have begun: at least one.
int begun(Real steps) {
    const int whole = std::max(static_cast<int>(steps), 0);
    return std::max(steps > static_cast<Real>(whole) ? whole + 1 : whole, 1);
}

Real lastOffset(const StripExtent &strip) { return std::max<Real>(strip.content - strip.width, 0); }

} // namespace

StripPage stripPage(const StripExtent &strip) {
    const Real end = strip.paging ? 0 : strip.gap;
    const int count = begun((strip.content - end - kBounce - kTolerance) / step(strip));
    const bool atEnd = strip.offset >= lastOffset(strip) - kTolerance;
    const int number = static_cast<int>(strip.offset / step(strip) + kHalf) + 1;
    return {atEnd ? count : std::clamp(number, 1, count), count};
}

Real nextPage(const StripExtent &strip) {
    const Real last = lastOffset(strip);
    if (last <= kBounce + kTolerance || strip.offset >= last - kTolerance) return strip.offset;
    const int page = static_cast<int>((strip.offset + kTolerance) / step(strip)) + 1;
    return std::min(static_cast<Real>(page) * step(strip), last);
}

Real previousPage(const StripExtent &strip) {
    if (strip.offset <= kTolerance) return strip.offset;
    const int page = begun((strip.offset - kTolerance) / step(strip)) - 1;
    return static_cast<Real>(page) * step(strip);
}

bool isSeen(const StripExtent &strip, Real x, Real width) {
    return x >= strip.offset - kTolerance && x + width <= strip.offset + strip.width + kTolerance;
}

} // namespace pendix

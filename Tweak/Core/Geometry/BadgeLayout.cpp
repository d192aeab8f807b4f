#include "Tweak/Core/Geometry/BadgeLayout.hpp"

namespace pendix {

Rect badgeFrame(const Rect &icon, Real textWidth, Real height) {
    constexpr Real kLeastMargin = 5, kMargin = 12, kOverlap = 4;
    const Real width = height > textWidth + kLeastMargin ? height : textWidth + kMargin;
    return {icon.x + icon.width - width / 2 - kOverlap, icon.y - height / 2 + kOverlap, width, height};
}

Real badgeHeightOr(Real seen) {
    constexpr Real kUsual = 24; // the stock badge of both systems
    return seen > 0 ? seen : kUsual;
}

} // namespace pendix

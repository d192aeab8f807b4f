#include "Tweak/Core/Geometry/StripLayout.hpp"

#include <algorithm>

namespace pendix {

namespace {

constexpr Real kAroundIcon = 36;  // strip height beyond the icon's
constexpr Real kForDots = 10;     // more with page dots
constexpr Real kBelowIcon = 5;    // cell height beyond the icon's
constexpr Real kPagedBottom = 20; // between a paged cell's icon and the strip's bottom
constexpr Real kLabelRoom = 10;
constexpr Real kTightInset = 3;
constexpr int kRoomyRows = 3;

constexpr Real kDotStep = 16, kDotMargin = 10, kDotMiddle = 5.5, kDotSize = 6;
constexpr Real kDotShare = 0.75; // of the step, that a dot takes at most
constexpr Real kDotsTop = 7, kDotsHeight = 11, kDotsBeyond = 20;

} // namespace

Real stripHeight(Real iconHeight, bool paging) { return iconHeight + kAroundIcon + (paging ? kForDots : 0); }

Real cellInset(const StripInput &input) {
    return !input.bigScreen && input.rows > kRoomyRows ? kTightInset : 0;
}

Rect cellFrame(const StripInput &input, int index) {
    const Real rows = static_cast<Real>(input.rows);
    const Real width = input.icon.width - cellInset(input);
    const Real gap = (input.strip.width - width * rows) / (rows + 1);
    const Real gapsOfPages = input.paging ? static_cast<Real>(index / input.rows) * gap : 0;
    const Real y = input.paging ? input.strip.height - input.icon.height - kPagedBottom
                                : (input.strip.height - (input.icon.height + kLabelRoom)) / 2 + kBelowIcon;
    return {gap + gapsOfPages + static_cast<Real>(index) * (gap + width), y, width,
            input.icon.height + kBelowIcon};
}

int pageCount(int count, int rows) { return (count + rows - 1) / rows; }

Real scrollableWidth(Real content, Real stripWidth) {
    return content > stripWidth ? content : stripWidth + 1;
}

Real unpagedContentWidth(const std::vector<Rect> &cells) {
    return cells.empty() ? 0 : cells.back().x + cells.back().width + cells.front().x;
}

Rect dotsFrame(int pages, Real contentWidth) {
    const Real width = static_cast<Real>(pages - 1) * dotStep(pages, contentWidth) + kDotsBeyond;
    return {(contentWidth - width) / 2, kDotsTop, width, kDotsHeight};
}

Real dotStep(int pages, Real contentWidth) {
    if (pages < 2) return kDotStep;
    return std::min(kDotStep, (contentWidth - kDotsBeyond) / static_cast<Real>(pages - 1));
}

Rect dotFrame(int page, Real step) {
    const Real size = std::min(kDotSize, step * kDotShare);
    return {static_cast<Real>(page) * step + kDotMargin, kDotMiddle - size / 2, size, size};
}

} // namespace pendix

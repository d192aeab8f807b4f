#include "Tweak/Core/Geometry/StripClosing.hpp"

#include "Tweak/Core/Geometry/StripLayout.hpp"

#include <cstddef>

namespace pendix {

std::vector<Rect> framesAfterClosing(const std::vector<Rect> &remaining, const Rect &removed, int index,
                                     Real stripWidth, int rows) {
    const Real step = stripWidth / static_cast<Real>(rows + 1);
    std::vector<Rect> frames = remaining;
    // From the last to the first, so that each moves to where the one before it still stands.
    for (int i = static_cast<int>(frames.size()) - 1; i >= 0; --i) {
        const auto at = static_cast<std::size_t>(i);
        if (i == index) {
            frames[at] = removed;
        } else if (remaining[at].x > removed.x) {
            if (i > 0) {
                frames[at] = remaining[at - 1];
            } else {
                frames[at].x = step;
            }
        }
    }
    return frames;
}

Real contentWidthAfterClosing(const std::vector<Rect> &cells, bool paging, int rows, Real stripWidth) {
    Real width = unpagedContentWidth(cells);
    if (paging && !cells.empty()) {
        const int count = static_cast<int>(cells.size());
        const int empty = pageCount(count, rows) * rows - count;
        width += static_cast<Real>(empty) * (cells.front().width + cells.front().x);
    }
    return scrollableWidth(width, stripWidth);
}

} // namespace pendix

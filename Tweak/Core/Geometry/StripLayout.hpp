// Where the applications stand on the strip, how far it scrolls, and its page dots. Plain numbers in points.
#pragma once

#include "Tweak/Core/Geometry/Rect.hpp"

#include <vector>

namespace pendix {

struct StripInput {
    Size icon;    // the home screen's icon size
    int rows = 3; // applications side by side on one page; at least 1
    bool paging = false;
    bool bigScreen = false;
    Size strip; // visible size
};

// The strip's height for an icon of that height.
Real stripHeight(Real iconHeight, bool paging);

// What a cell is narrower than an icon: more than three side by side are tight on a small screen.
Real cellInset(const StripInput &input);

// The frame of the application at `index`. With paging each page starts with a gap of its own.
Rect cellFrame(const StripInput &input, int index);

// Pages that `count` applications fill.
int pageCount(int count, int rows);

// The scrollable width: always more than the strip shows, so that it can bounce.
Real scrollableWidth(Real content, Real stripWidth);
// Of `cells`, which stand on an unpaged strip: as much room after the last one as before the first.
Real unpagedContentWidth(const std::vector<Rect> &cells);

// The row of page dots in a content view of that width: four points of margin on the right of the last dot,
// ten on the left of the first. A row that would be wider than the content view is as wide as it.
Rect dotsFrame(int pages, Real contentWidth);
// From one dot to the next: 16, or what leaves room for all of them.
Real dotStep(int pages, Real contentWidth);
// In the row. Dots that stand closer than eight points are smaller than the usual six, so that they stay
// apart.
Rect dotFrame(int page, Real step);

} // namespace pendix

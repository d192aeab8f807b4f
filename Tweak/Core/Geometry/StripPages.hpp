// The pages of the strip for three fingers: an unpaged strip moves on by as many whole cells as it shows.
// Plain numbers in points.
#pragma once

#include "Tweak/Core/Geometry/Rect.hpp"

namespace pendix {

struct StripExtent {
    Real offset = 0, width = 0, content = 0; // how far it is scrolled, what it shows, all that it has
    Real gap = 0;                            // between cells
    bool paging = false;
};

struct StripPage {
    int number = 1, count = 1; // the number from 1
    bool operator==(const StripPage &) const = default;
};
// The page that shows, or most of it.
StripPage stripPage(const StripExtent &strip);

// Where the strip is scrolled to for the page after that one, or before it; where it is when there is none.
Real nextPage(const StripExtent &strip);
Real previousPage(const StripExtent &strip);

// Whether what lies from `x` on can be seen whole.
bool isSeen(const StripExtent &strip, Real x, Real width);

} // namespace pendix

// What moves on the strip when an application leaves it.
#pragma once

#include "Tweak/Core/Geometry/Rect.hpp"

#include <vector>

namespace pendix {

// The frames that the remaining cells take, in their order, after the one at `index` with the frame `removed`
// has gone: everything beyond it moves up one place. `stripWidth` and `rows` place a cell that has none
// before it.
std::vector<Rect> framesAfterClosing(const std::vector<Rect> &remaining, const Rect &removed, int index,
                                     Real stripWidth, int rows);

// The content width then. With paging the last page is kept full, in cells of the first one's width and
// margin.
Real contentWidthAfterClosing(const std::vector<Rect> &cells, bool paging, int rows, Real stripWidth);

} // namespace pendix

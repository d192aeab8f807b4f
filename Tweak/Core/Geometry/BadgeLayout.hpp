// A badge on an icon's top right corner. Plain numbers in points.
#pragma once

#include "Tweak/Core/Geometry/Rect.hpp"

namespace pendix {

// Round for a text that fits, longer for one that does not. `height` is the home screen's badge height.
Rect badgeFrame(const Rect &icon, Real textWidth, Real height);

// The height of a badge where none has been seen yet (a `seen` of 0).
Real badgeHeightOr(Real seen);

} // namespace pendix

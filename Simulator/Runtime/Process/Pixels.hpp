// Rounding to whole pixels of the screen, so that what is thin stays crisp.
#pragma once

#include "Device.hpp"

#include <cmath>

namespace sim {

// `points` and the result in points; `scale` in pixels a point.
inline double wholePixels(double points, double scale = device().scale) {
    return std::round(points * scale) / scale;
}

} // namespace sim

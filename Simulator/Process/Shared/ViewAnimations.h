// The animations of a layer as plain values.
#pragma once

#include "Runtime/Values/Value.hpp"
#include "UIKit/QuartzCore/LayerState.h"

namespace sim {

// To millionths, so that what was a float reads as it was written.
double rounded(double value);

// A list of {"key", "keypath", "from", "to", "duration" (seconds), "repeats", "autoreverses"}: those added as
// objects and those that animation blocks started. "repeats" is "forever" for endless ones. Points are {x,
// y}, sizes {w, h}, rectangles {x, y, w, h}, transforms six numbers, colours text.
Value animationsOf(CALayer *layer);

} // namespace sim

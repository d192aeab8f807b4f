// Pictures side by side.
#pragma once

#include "Render/Bitmap.hpp"

#include <vector>

namespace sim {

// All frames in a row on a grey ground, with gaps of eight points between them. The frames have one size;
// there is at least one.
render::Bitmap filmStrip(const std::vector<render::Bitmap> &frames);

} // namespace sim

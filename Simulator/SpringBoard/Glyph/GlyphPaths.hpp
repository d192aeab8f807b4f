// The lines of the fingerprint drawing and of the tick that takes its place, in a square of a given side.
#pragma once

#include "Render/Geometry.hpp"

#include <vector>

namespace sim {

std::vector<render::Path> fingerprintRidges(double side);
render::Path tickCircle(double side);
render::Path tickMark(double side);

// How thick they are drawn.
double ridgeWidth(double side);
double tickWidth(double side);

} // namespace sim

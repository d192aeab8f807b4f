// Lines of a drawing as layers.
#pragma once

#include "Render/Geometry.hpp"

#include <QuartzCore/QuartzCore.h>

namespace sim {

// A line with round ends and nothing in between, on top of what the layer holds.
CAShapeLayer *addLine(CALayer *layer);
void setLine(CAShapeLayer *line, const render::Path &path, double width);

} // namespace sim

// Outlines, filled and stroked.
#pragma once

#include "Render/Basics/Cairo.hpp"
#include "Render/DisplayList.hpp"

namespace render {

// Draws under the context's present matrix. Corners of strokes are mitred, ends cut off unless round.
void drawShape(cairo_t *context, const Shape &shape);

// What the shape may paint, in its own coordinates.
Rect extent(const Shape &shape);

} // namespace render

// What areas are filled with.
#pragma once

#include "Render/Basics/Cairo.hpp"
#include "Render/DisplayList.hpp"

namespace render {

// Makes the pattern the context's source, its tiles starting at `origin` under the present matrix.
void setSource(cairo_t *context, const Pattern &pattern, Point origin);
// A pattern starts at the upper left corner of `area`.
void setSource(cairo_t *context, const Paint &paint, const Rect &area);
// Stops that are too few, or not as many as colours, are spread evenly.
void setSource(cairo_t *context, const Gradient &gradient, const Rect &area);

bool isVisible(const Paint &paint);
bool isVisible(const Gradient &gradient);

} // namespace render

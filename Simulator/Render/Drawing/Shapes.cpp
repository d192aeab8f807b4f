#include "Shapes.hpp"

#include "PathParts.hpp"
#include "Render/Basics/Transforms.hpp"

#include <algorithm>

namespace render {

namespace {

constexpr double kMiterLimit = 10; // the platform's default

bool strokes(const Shape &shape) {
    return shape.stroke && shape.strokeWidth > 0 && shape.strokeEnd > shape.strokeStart;
}

void stroke(cairo_t *context, const Shape &shape) {
    bool whole = shape.strokeStart <= 0 && shape.strokeEnd >= 1;
    cairo_new_path(context);
    addPath(context,
            whole ? shape.path
                  : partOf(shape.path, std::max(0.0, shape.strokeStart), std::min(1.0, shape.strokeEnd)));
    setSource(context, *shape.stroke);
    cairo_set_line_width(context, shape.strokeWidth);
    cairo_set_miter_limit(context, kMiterLimit);
    cairo_set_line_cap(context, shape.roundCaps ? CAIRO_LINE_CAP_ROUND : CAIRO_LINE_CAP_BUTT);
    cairo_stroke(context);
}

} // namespace

void drawShape(cairo_t *context, const Shape &shape) {
    if (shape.fill) {
        cairo_new_path(context);
        addPath(context, shape.path);
        setSource(context, *shape.fill);
        cairo_fill(context);
    }
    if (strokes(shape)) stroke(context, shape);
}

Rect extent(const Shape &shape) {
    Rect box = boundsOf(shape.path);
    return strokes(shape) ? inset(box, -shape.strokeWidth / 2 * kMiterLimit) : box;
}

} // namespace render

// cairo's objects with owners, and our values in its terms.
#pragma once

#include "Render/Bitmap.hpp"
#include "Render/Geometry.hpp"

#include <cairo.h>

#include <memory>

namespace render {

struct CairoRelease {
    void operator()(cairo_surface_t *surface) const { cairo_surface_destroy(surface); }
    void operator()(cairo_t *context) const { cairo_destroy(context); }
    void operator()(cairo_pattern_t *pattern) const { cairo_pattern_destroy(pattern); }
};
using Surface = std::unique_ptr<cairo_surface_t, CairoRelease>;
using Context = std::unique_ptr<cairo_t, CairoRelease>;
using PatternRef = std::unique_ptr<cairo_pattern_t, CairoRelease>;

// A surface over the bitmap's own pixels, which have to outlive it.
Surface surfaceOver(Bitmap &bitmap);
// A surface over a part of the bitmap's pixels; `part` lies inside of it.
Surface surfaceOver(Bitmap &bitmap, const PixelRect &part);
// To paint from; nothing is ever drawn onto it.
Surface surfaceFrom(const Bitmap &bitmap);
Surface surfaceFrom(const Bitmap &bitmap, const PixelRect &part);
Context contextOn(const Surface &surface);

cairo_matrix_t matrixOf(const Affine &transform);
void setSource(cairo_t *context, const Rgba &color);
// Appends to the context's path under its present matrix.
void addPath(cairo_t *context, const Path &path);
void addRect(cairo_t *context, const PixelRect &rect);

} // namespace render

#include "Cairo.hpp"

namespace render {

namespace {

Surface over(const Bitmap &bitmap, const PixelRect &part) {
    const uint32_t *pixels = bitmap.pixels.data() + static_cast<size_t>(part.y) * bitmap.width + part.x;
    auto *bytes = reinterpret_cast<unsigned char *>(const_cast<uint32_t *>(pixels));
    return Surface(cairo_image_surface_create_for_data(bytes, CAIRO_FORMAT_ARGB32, part.width, part.height,
                                                       bitmap.width * 4));
}

} // namespace

Surface surfaceOver(Bitmap &bitmap) { return over(bitmap, {0, 0, bitmap.width, bitmap.height}); }

Surface surfaceOver(Bitmap &bitmap, const PixelRect &part) { return over(bitmap, part); }

Surface surfaceFrom(const Bitmap &bitmap) { return over(bitmap, {0, 0, bitmap.width, bitmap.height}); }

Surface surfaceFrom(const Bitmap &bitmap, const PixelRect &part) { return over(bitmap, part); }

Context contextOn(const Surface &surface) { return Context(cairo_create(surface.get())); }

cairo_matrix_t matrixOf(const Affine &t) { return {t.a, t.b, t.c, t.d, t.tx, t.ty}; }

void setSource(cairo_t *context, const Rgba &color) {
    cairo_set_source_rgba(context, color.red, color.green, color.blue, color.alpha);
}

void addPath(cairo_t *context, const Path &path) {
    for (const PathElement &element : path.elements) {
        const Point *p = element.points;
        switch (element.verb) {
        case PathElement::Verb::move:
            cairo_move_to(context, p[0].x, p[0].y);
            break;
        case PathElement::Verb::line:
            cairo_line_to(context, p[0].x, p[0].y);
            break;
        case PathElement::Verb::curve:
            cairo_curve_to(context, p[0].x, p[0].y, p[1].x, p[1].y, p[2].x, p[2].y);
            break;
        case PathElement::Verb::close:
            cairo_close_path(context);
            break;
        }
    }
}

void addRect(cairo_t *context, const PixelRect &rect) {
    cairo_rectangle(context, rect.x, rect.y, rect.width, rect.height);
}

} // namespace render

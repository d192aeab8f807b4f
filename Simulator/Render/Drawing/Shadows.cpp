#include "Shadows.hpp"

#include "PathParts.hpp"
#include "Render/Basics/Transforms.hpp"

#include <algorithm>
#include <cmath>

namespace render {

namespace {

constexpr double kFinestSigma = 4; // cells; below it the blur would show the cells
constexpr int kCoarsest = 8;
constexpr int kLargestSide = 16384;    // pixels
constexpr double kGreatestSigma = 400; // pixels; softer ones look like nothing at all

// The mask's bytes, blurred in place.
void blurMask(cairo_surface_t *surface, const BlurSteps &steps) {
    cairo_surface_flush(surface);
    int width = cairo_image_surface_get_width(surface), height = cairo_image_surface_get_height(surface);
    int stride = cairo_image_surface_get_stride(surface);
    unsigned char *bytes = cairo_image_surface_get_data(surface);
    std::vector<int32_t> cells(static_cast<size_t>(width) * height);
    for (int y = 0; y < height; y++)
        for (int x = 0; x < width; x++)
            cells[static_cast<size_t>(y) * width + x] = bytes[y * stride + x] << 8;
    blur(cells, width, height, steps);
    for (int y = 0; y < height; y++)
        for (int x = 0; x < width; x++)
            bytes[y * stride + x] =
                static_cast<unsigned char>((cells[static_cast<size_t>(y) * width + x] + 128) >> 8);
    cairo_surface_mark_dirty(surface);
}

void addToKey(CacheKey &key, const Path &path) {
    for (const PathElement &element : path.elements) {
        key.add(element.verb);
        int count = element.verb == PathElement::Verb::close   ? 0
                    : element.verb == PathElement::Verb::curve ? 3
                                                               : 1;
        for (int i = 0; i < count; i++) key.add(element.points[i].x).add(element.points[i].y);
    }
}

size_t bytesOf(const ShadowMask &mask) {
    constexpr size_t kBookkeeping = 512;
    if (!mask.alpha) return kBookkeeping;
    return kBookkeeping + static_cast<size_t>(cairo_image_surface_get_stride(mask.alpha.get())) *
                              cairo_image_surface_get_height(mask.alpha.get());
}

} // namespace

ShadowFrame shadowFrame(const Rect &outline, double sigma) {
    double soft = std::min(sigma, kGreatestSigma);
    ShadowFrame frame;
    frame.factor = std::clamp(static_cast<int>(soft / kFinestSigma), 1, kCoarsest);
    frame.steps = blurSteps(soft / frame.factor);
    frame.area = inflate(roundOut(outline), (frame.steps.reach() + 1) * frame.factor);
    return frame;
}

ShadowMask makeShadow(const ShadowFrame &frame, const Affine &linear, const FillOutline &fill) {
    if (frame.area.empty() || std::max(frame.area.width, frame.area.height) > kLargestSide)
        return {frame, nullptr};
    auto cells = [&frame](int pixels) { return (pixels + frame.factor - 1) / frame.factor; };
    Surface surface(
        cairo_image_surface_create(CAIRO_FORMAT_A8, cells(frame.area.width), cells(frame.area.height)));
    if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) return {frame, nullptr};
    Affine moved = concat(linear, translation(-frame.area.x, -frame.area.y));
    fill(surface.get(), concat(moved, scaling(1.0 / frame.factor)));
    blurMask(surface.get(), frame.steps);
    return {frame, std::shared_ptr<cairo_surface_t>(surface.release(), CairoRelease())};
}

ShadowMask ShadowMasks::mask(const Path &path, double radius, const Affine &linear) {
    CacheKey key;
    for (double number : {radius, linear.a, linear.b, linear.c, linear.d}) key.add(number);
    addToKey(key, path);
    auto make = [&] {
        ShadowFrame frame = shadowFrame(apply(linear, boundsOf(path)), sigmaOf(radius, linear));
        return makeShadow(frame, linear, [&](cairo_surface_t *surface, const Affine &toMask) {
            Context context(cairo_create(surface));
            cairo_matrix_t matrix = matrixOf(toMask);
            cairo_set_matrix(context.get(), &matrix);
            addPath(context.get(), path);
            cairo_fill(context.get());
        });
    };
    return masks_.get(key, make, bytesOf);
}

double sigmaOf(double radius, const Affine &t) { return radius * std::sqrt(std::abs(t.a * t.d - t.b * t.c)); }

Affine linearPart(const Affine &t) { return {t.a, t.b, t.c, t.d, 0, 0}; }

void paintShadow(cairo_t *context, const ShadowMask &mask, Point origin, const Rgba &color) {
    if (!mask.alpha) return;
    PatternRef pattern(cairo_pattern_create_for_surface(mask.alpha.get()));
    cairo_pattern_set_filter(pattern.get(), CAIRO_FILTER_BILINEAR);
    double cell = 1.0 / mask.frame.factor;
    cairo_matrix_t toMask = {
        cell, 0, 0, cell, -(origin.x + mask.frame.area.x) * cell, -(origin.y + mask.frame.area.y) * cell};
    cairo_pattern_set_matrix(pattern.get(), &toMask);
    setSource(context, color);
    cairo_mask(context, pattern.get());
}

bool isVisible(const std::optional<Shadow> &shadow) {
    return shadow && shadow->opacity > 0 && shadow->color.alpha > 0;
}

} // namespace render

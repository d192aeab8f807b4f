#include "TextMask.hpp"

#include "Render/Basics/Transforms.hpp"
#include "TextLayout.hpp"

#include <pango/pangocairo.h>

#include <algorithm>
#include <cmath>

namespace render {

namespace {

constexpr double kPhases = 8; // places within a pixel that are told apart

// Letters may reach this far out of their line, in point sizes.
constexpr double kOverhang = 0.35;

std::shared_ptr<const TextLayout> layoutOf(const TextRun &run) {
    TextStyle style = run.style;
    style.maxLines = linesInBox(style, run.box.height);
    return layOut(run.text, style, run.box.width);
}

// The part of the box (whose origin is 0, 0) that the lines take.
Rect inkOf(const TextLayout &layout, const std::vector<Point> &starts, const TextRun &run, bool upright) {
    double left = 1e9, right = -1e9, margin = kOverhang * run.style.size;
    for (size_t i = 0; i < starts.size(); i++) {
        left = std::min(left, starts[i].x);
        right = std::max(right, starts[i].x + layout.lines[i].width);
    }
    double top = starts.front().y - layout.metrics.ascent, bottom = starts.back().y + layout.metrics.descent;
    Rect ink = inset({left, top, right - left, bottom - top}, -margin);
    return upright ? intersect(ink, Rect{0, 0, run.box.width, run.box.height}) : ink;
}

TextMask drawMask(const TextRun &run, const Affine &toDevice, double scale) {
    auto layout = layoutOf(run);
    if (layout->lines.empty()) return {};
    bool upright = keepsUpright(toDevice);
    Rect box = {0, 0, run.box.width, run.box.height};
    auto starts = baselines(*layout, run.style.alignment, box, scale);
    PixelRect part = roundOut(apply(toDevice, inkOf(*layout, starts, run, upright)));
    if (part.empty()) return {};
    Surface surface(cairo_image_surface_create(CAIRO_FORMAT_A8, part.width, part.height));
    Context context = contextOn(surface);
    cairo_matrix_t matrix = matrixOf(concat(toDevice, translation(-part.x, -part.y)));
    cairo_set_matrix(context.get(), &matrix);
    for (size_t i = 0; i < starts.size(); i++) {
        cairo_move_to(context.get(), starts[i].x, starts[i].y);
        pango_cairo_layout_line_path(context.get(), layout->lines[i].line);
    }
    cairo_set_source_rgba(context.get(), 0, 0, 0, 1);
    cairo_fill(context.get());
    return {part.x, part.y, std::shared_ptr<cairo_surface_t>(surface.release(), CairoRelease())};
}

size_t bytesOf(const TextMask &mask) {
    constexpr size_t kBookkeeping = 256;
    if (!mask.alpha) return kBookkeeping;
    return kBookkeeping + static_cast<size_t>(cairo_image_surface_get_stride(mask.alpha.get())) *
                              cairo_image_surface_get_height(mask.alpha.get());
}

} // namespace

PixelRect extent(const TextRun &run, const Affine &toDevice) {
    if (run.text.empty() || run.box.empty()) return {};
    double margin = keepsUpright(toDevice) ? 0 : kOverhang * run.style.size;
    return inflate(roundOut(apply(toDevice, inset(run.box, -margin))), 1);
}

TextMask TextMasks::mask(const TextRun &run, const Affine &toDevice, double scale) {
    if (run.text.empty() || run.box.empty()) return {};
    Point origin = apply(toDevice, Point{run.box.x, run.box.y});
    double x = std::floor(origin.x), y = std::floor(origin.y);
    // Rounding may lead to the next whole pixel, which is as good a place as any other.
    double phaseX = std::round((origin.x - x) * kPhases) / kPhases;
    double phaseY = std::round((origin.y - y) * kPhases) / kPhases;
    Affine local = {toDevice.a, toDevice.b, toDevice.c, toDevice.d, phaseX, phaseY};
    const TextStyle &style = run.style;
    CacheKey key;
    key.addText(run.text).add(style.face).add(style.size).add(style.alignment).add(style.lineBreak);
    key.add(style.maxLines).add(run.box.width).add(run.box.height).add(scale);
    for (double number : {local.a, local.b, local.c, local.d, phaseX, phaseY}) key.add(number);
    TextMask mask = masks_.get(
        key, [&] { return drawMask(run, local, scale); }, bytesOf);
    mask.x += static_cast<int>(x);
    mask.y += static_cast<int>(y);
    return mask;
}

} // namespace render

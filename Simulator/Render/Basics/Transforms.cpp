#include "Transforms.hpp"

#include <algorithm>
#include <cmath>

namespace render {

namespace {

// Far outside of any screen, and still exact in the fixed-point numbers of the rasteriser.
constexpr double kFarAway = 1 << 20;

int pixel(double value) { return static_cast<int>(std::clamp(value, -kFarAway, kFarAway)); }

PixelRect between(double left, double top, double right, double bottom) {
    if (!(right > left) || !(bottom > top)) return {};
    int x = pixel(left), y = pixel(top);
    return {x, y, pixel(right) - x, pixel(bottom) - y};
}

} // namespace

Affine concat(const Affine &inner, const Affine &outer) {
    return {
        outer.a * inner.a + outer.c * inner.b,
        outer.b * inner.a + outer.d * inner.b,
        outer.a * inner.c + outer.c * inner.d,
        outer.b * inner.c + outer.d * inner.d,
        outer.a * inner.tx + outer.c * inner.ty + outer.tx,
        outer.b * inner.tx + outer.d * inner.ty + outer.ty,
    };
}

Affine translation(double x, double y) { return {1, 0, 0, 1, x, y}; }

Affine scaling(double factor) { return {factor, 0, 0, factor, 0, 0}; }

Point apply(const Affine &t, Point p) { return {t.a * p.x + t.c * p.y + t.tx, t.b * p.x + t.d * p.y + t.ty}; }

Rect apply(const Affine &t, const Rect &rect) {
    double right = rect.x + rect.width, bottom = rect.y + rect.height;
    Point corners[] = {apply(t, Point{rect.x, rect.y}), apply(t, Point{right, rect.y}),
                       apply(t, Point{rect.x, bottom}), apply(t, Point{right, bottom})};
    auto [left, farRight] = std::minmax({corners[0].x, corners[1].x, corners[2].x, corners[3].x});
    auto [top, farBottom] = std::minmax({corners[0].y, corners[1].y, corners[2].y, corners[3].y});
    return {left, top, farRight - left, farBottom - top};
}

bool isDrawable(const Affine &t) {
    double area = t.a * t.d - t.b * t.c;
    return std::isfinite(area) && std::isfinite(t.tx) && std::isfinite(t.ty) && std::abs(area) > 1e-9;
}

Affine inverse(const Affine &t) {
    double area = t.a * t.d - t.b * t.c;
    return {t.d / area,
            -t.b / area,
            -t.c / area,
            t.a / area,
            (t.c * t.ty - t.d * t.tx) / area,
            (t.b * t.tx - t.a * t.ty) / area};
}

bool keepsUpright(const Affine &t) {
    constexpr double kNone = 1e-9;
    return (std::abs(t.b) < kNone && std::abs(t.c) < kNone) ||
           (std::abs(t.a) < kNone && std::abs(t.d) < kNone);
}

Rect inset(const Rect &rect, double by) {
    return {rect.x + by, rect.y + by, rect.width - 2 * by, rect.height - 2 * by};
}

Rect intersect(const Rect &one, const Rect &other) {
    double left = std::max(one.x, other.x), top = std::max(one.y, other.y);
    double right = std::min(one.x + one.width, other.x + other.width);
    double bottom = std::min(one.y + one.height, other.y + other.height);
    return {left, top, std::max(0.0, right - left), std::max(0.0, bottom - top)};
}

PixelRect roundOut(const Rect &rect) {
    return between(std::floor(rect.x), std::floor(rect.y), std::ceil(rect.x + rect.width),
                   std::ceil(rect.y + rect.height));
}

PixelRect snap(const Rect &rect) {
    auto nearest = [](double value) { return std::ceil(value - 0.5); };
    return between(nearest(rect.x), nearest(rect.y), nearest(rect.x + rect.width),
                   nearest(rect.y + rect.height));
}

std::optional<PixelRect> snapped(const Rect &rect, const Affine &toDevice) {
    if (!keepsUpright(toDevice)) return std::nullopt;
    PixelRect pixels = snap(apply(toDevice, rect));
    if (pixels.empty()) return std::nullopt;
    return pixels;
}

PixelRect intersect(const PixelRect &one, const PixelRect &other) {
    int left = std::max(one.x, other.x), top = std::max(one.y, other.y);
    int right = std::min(one.x + one.width, other.x + other.width);
    int bottom = std::min(one.y + one.height, other.y + other.height);
    if (right <= left || bottom <= top) return {};
    return {left, top, right - left, bottom - top};
}

PixelRect unite(const PixelRect &one, const PixelRect &other) {
    if (one.empty()) return other;
    if (other.empty()) return one;
    int left = std::min(one.x, other.x), top = std::min(one.y, other.y);
    int right = std::max(one.x + one.width, other.x + other.width);
    int bottom = std::max(one.y + one.height, other.y + other.height);
    return {left, top, right - left, bottom - top};
}

PixelRect inflate(const PixelRect &rect, int by) {
    if (rect.empty()) return rect;
    return {rect.x - by, rect.y - by, rect.width + 2 * by, rect.height + 2 * by};
}

bool contains(const PixelRect &outer, const PixelRect &inner) {
    return inner.empty() || intersect(outer, inner) == inner;
}

Rect toRect(const PixelRect &rect) {
    return {static_cast<double>(rect.x), static_cast<double>(rect.y), static_cast<double>(rect.width),
            static_cast<double>(rect.height)};
}

} // namespace render

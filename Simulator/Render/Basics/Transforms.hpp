// Sums with affine transforms and with whole pixels.
#pragma once

#include "Render/Geometry.hpp"

#include <optional>

namespace render {

// `inner` first, then `outer`.
Affine concat(const Affine &inner, const Affine &outer);
Affine translation(double x, double y);
Affine scaling(double factor);
Point apply(const Affine &transform, Point point);
// The smallest upright rectangle round the transformed one.
Rect apply(const Affine &transform, const Rect &rect);
// False when everything would fall onto a line or a point, or when a number is not finite.
bool isDrawable(const Affine &transform);
// The inverse of a drawable transform.
Affine inverse(const Affine &transform);
// True when upright rectangles stay upright: quarter turns, mirroring, scaling and moving.
bool keepsUpright(const Affine &transform);

Rect inset(const Rect &rect, double by);
// The part of both; empty when they do not meet.
Rect intersect(const Rect &one, const Rect &other);

// All pixels that `rect` touches. What lies far outside of any bitmap is cut off.
PixelRect roundOut(const Rect &rect);
// The pixels whose middles lie in `rect`, which is how the platform fills upright rectangles (inferred: its
// layers do not smooth their edges unless told).
PixelRect snap(const Rect &rect);
// What `rect` covers as whole pixels when `toDevice` keeps it upright; nothing when it is turned, or so thin
// that no pixel would be left.
std::optional<PixelRect> snapped(const Rect &rect, const Affine &toDevice);

PixelRect intersect(const PixelRect &one, const PixelRect &other);
// The smallest rectangle round both; empty ones do not count.
PixelRect unite(const PixelRect &one, const PixelRect &other);
PixelRect inflate(const PixelRect &rect, int by);
bool contains(const PixelRect &outer, const PixelRect &inner);
Rect toRect(const PixelRect &rect);

} // namespace render

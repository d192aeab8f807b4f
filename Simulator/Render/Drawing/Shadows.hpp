// Blurred outlines. A shadow's radius is the spread (sigma) of its blur, as on the platform.
#pragma once

#include "Blur.hpp"
#include "Render/Basics/Cache.hpp"
#include "Render/Basics/Cairo.hpp"
#include "Render/DisplayList.hpp"

#include <functional>

namespace render {

// Where a shadow falls, and how coarse a mask will do for it: the softer, the coarser.
struct ShadowFrame {
    int factor = 1;  // pixels a side of one of the mask's cells
    BlurSteps steps; // in cells
    PixelRect area;  // what the mask covers, in pixels from the node's origin
};
// For an outline within `outline`, in pixels from the node's origin, blurred by `sigma` pixels.
ShadowFrame shadowFrame(const Rect &outline, double sigma);

struct ShadowMask {
    ShadowFrame frame;
    std::shared_ptr<cairo_surface_t> alpha; // nullptr: nothing to see
};

// Fills the outline on the mask, where `toMask` leads from the node's coordinates.
using FillOutline = std::function<void(cairo_surface_t *mask, const Affine &toMask)>;
// `linear` leads from the node's coordinates to pixels, its origin staying at 0, 0.
ShadowMask makeShadow(const ShadowFrame &frame, const Affine &linear, const FillOutline &fill);

// Shadows of paths, made once for all places that they fall on.
class ShadowMasks {
public:
    ShadowMask mask(const Path &path, double radius, const Affine &linear);

private:
    Cache<ShadowMask> masks_{16 << 20}; // bytes
};

// Spreads of a node's shadow in pixels under a transform.
double sigmaOf(double radius, const Affine &transform);
// The transform without what it moves.
Affine linearPart(const Affine &transform);

// Paints the shadow of a node whose origin, moved by the shadow's offset, is at `origin` in the context's
// pixels.
void paintShadow(cairo_t *context, const ShadowMask &mask, Point origin, const Rgba &color);

// False when there is nothing to see of the shadow, whatever the node shows.
bool isVisible(const std::optional<Shadow> &shadow);

} // namespace render

// Text as a stencil of alpha, ready to be painted through.
#pragma once

#include "Render/Basics/Cache.hpp"
#include "Render/Basics/Cairo.hpp"
#include "Render/DisplayList.hpp"

namespace render {

// Alpha alone, lying on the pixels from (x, y) on.
struct TextMask {
    int x = 0, y = 0;
    std::shared_ptr<cairo_surface_t> alpha; // nullptr when there is nothing to see
};

class TextMasks {
public:
    // The run's letters under `toDevice` (to pixels of a screen of `scale`). They are drawn as outlines, so
    // that they sit where they belong at any size and turn; that place is kept to an eighth of a pixel.
    // Upright text is cut off at its box, as on the platform.
    TextMask mask(const TextRun &run, const Affine &toDevice, double scale);

private:
    Cache<TextMask> masks_{24 << 20}; // bytes
};

// What the run may paint, in pixels.
PixelRect extent(const TextRun &run, const Affine &toDevice);

} // namespace render

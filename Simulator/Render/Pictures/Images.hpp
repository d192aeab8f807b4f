// Bitmaps made ready for where they go: resized by their caps, tinted, shrunk.
#pragma once

#include "Render/Basics/Cache.hpp"
#include "Render/Basics/Cairo.hpp"
#include "Render/DisplayList.hpp"

namespace render {

class Images {
public:
    // Draws under `toDevice`, which has to be the context's present matrix but for the origin of its pixels,
    // `origin`. Where a pixel of the bitmap falls on a pixel of the screen it is copied, otherwise pixels are
    // blended; much smaller than the bitmap, all of its pixels count.
    void draw(cairo_t *context, const Image &image, const Affine &toDevice, Point origin);

    // The image's bitmap with its middle tiled to the size of its rect and its tint painted through; the same
    // bitmap when it has neither caps nor tint.
    BitmapRef prepared(const Image &image);

private:
    // What was made holds on to what it was made from, so that no other bitmap takes that address.
    struct Made {
        BitmapRef from, result;
    };
    BitmapRef halved(const BitmapRef &bitmap, int times);
    template <typename Make>
    BitmapRef make(CacheKey key, const BitmapRef &from, const Make &make);

    Cache<Made> made_{48 << 20}; // bytes
};

} // namespace render

// Paints items onto a surface.
#pragma once

#include "Items.hpp"
#include "Render/Pictures/Images.hpp"
#include "Render/Text/TextMask.hpp"

#include <functional>

namespace render {

// What painting needs again and again.
struct PaintResources {
    TextMasks text;
    Images images;
    ShadowMasks shadows;
};

// The corner radius as it is drawn: at most half the shorter side.
double radiusOf(const Node &node);

class Painter {
public:
    // The material of the item's backdrop, as large as the area that is painted. Absent: only alpha counts,
    // and a backdrop is opaque.
    using MaterialOf = std::function<const Bitmap &(int index)>;

    // `area` is what the surface shows, in the items' pixels; `scale` that of the screen.
    Painter(PaintResources &resources, Items &items, double scale, const PixelRect &area,
            MaterialOf materialOf);

    // Paints the items before `limit`, and of those around it what lies below: all that the item at `limit`
    // has under it. Paints onto what the surface shows already, which is what lies below the item at `from`;
    // it has to be possible to begin there.
    void paint(cairo_surface_t *surface, int from, int limit);

    // The nearest item, `index` itself or one of those around it, at which painting can begin: nothing around
    // it is put together apart from the surface.
    int beginning(int index) const;

private:
    void paintItem(int index);
    void paintMasked(int index);
    void paintMask(const Item &item);
    void paintClipped(int index);
    void paintContent(int index, bool rounded);
    void paintShadowOf(Item &item);
    const ShadowMask &outlineShadow(Item &item);
    void paintBackdrop(int index, bool rounded);
    void paintBorder(const Item &item, bool rounded);
    void paintDrawing(const Item &item, const Drawing &drawing);
    void paintText(const Item &item, const TextRun &run);

    void useCoordinates(const Item &item);
    void usePixels();
    void addBounds(const Item &item, bool rounded);
    bool liesInside(const Item &item) const;
    bool clipsSquarely(const Item &item) const;

    PaintResources &resources_;
    Items &items_;
    double scale_;
    PixelRect area_;
    MaterialOf materialOf_;
    cairo_t *context_ = nullptr;
    int from_ = 0, limit_ = 0;
};

} // namespace render

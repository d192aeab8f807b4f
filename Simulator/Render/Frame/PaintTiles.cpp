// How a compositor paints single tiles.
#include "Compositor.hpp"

namespace render {

namespace {

Bitmap copyOf(cairo_surface_t *surface, const PixelRect &area) {
    Bitmap copy(area.width, area.height);
    Context context = contextOn(surfaceOver(copy));
    cairo_set_operator(context.get(), CAIRO_OPERATOR_SOURCE);
    cairo_set_source_surface(context.get(), surface, 0, 0);
    cairo_paint(context.get());
    return copy;
}

// With the picture that painting begins on.
void fill(cairo_surface_t *surface, const Underlays::Underlay *underlay, const Rgba &background) {
    Context context(cairo_create(surface));
    if (underlay)
        cairo_set_source_surface(context.get(), surfaceFrom(underlay->picture).get(), 0, 0);
    else
        setSource(context.get(), background);
    cairo_set_operator(context.get(), CAIRO_OPERATOR_SOURCE);
    cairo_paint(context.get());
}

} // namespace

// Paints from the nearest underlay on; keeps one below what changed in this frame, which will change again in
// the next if it moves.
void Compositor::paintTile(cairo_surface_t *surface, int tile, int limit) {
    auto materialOf = [&](int index) -> const Bitmap & {
        auto below = [this, index](int which) -> const Bitmap & { return pictureBelow(which, index); };
        return items_[index].material->tile(tile, items_[index].own, below);
    };
    PixelRect area = grid_.rect(tile);
    Painter painter(resources_, items_, scene_.scale, area, materialOf);
    const Underlays::Underlay *underlay = underlays_.find(tile, limit);
    int from = underlay ? underlay->limit : 0;
    fill(surface, underlay, scene_.background);
    int stop = lowest_[tile] == kNone ? 0 : painter.beginning(lowest_[tile]);
    if (from < stop && stop < limit) {
        painter.paint(surface, from, stop);
        underlays_.keep(tile, stop, copyOf(surface, area));
        from = stop;
    }
    painter.paint(surface, from, limit);
}

const Bitmap &Compositor::pictureBelow(int tile, int limit) {
    const Underlays::Underlay *known = underlays_.find(tile, limit);
    if (known && known->limit == limit) return known->picture;
    PixelRect area = grid_.rect(tile);
    bool keeps = Painter(resources_, items_, scene_.scale, area, nullptr).beginning(limit) == limit;
    Bitmap picture(area.width, area.height);
    Surface surface = surfaceOver(picture);
    paintTile(surface.get(), tile, limit);
    cairo_surface_flush(surface.get());
    if (keeps) return underlays_.keep(tile, limit, std::move(picture));
    scratch_ = std::move(picture);
    return scratch_;
}

void Compositor::paintMarked() {
    repainted_.clear();
    for (int tile = 0; tile < grid_.count(); tile++) {
        if (!marked_[tile]) continue;
        PixelRect area = grid_.rect(tile);
        Surface surface = surfaceOver(canvas_, area);
        paintTile(surface.get(), tile, static_cast<int>(items_.size()));
        marked_[tile] = false;
        repainted_.push_back(area);
    }
}

} // namespace render

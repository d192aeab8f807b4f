// Keeps the picture of one screen and paints what changes from frame to frame.
#pragma once

#include "Changes.hpp"
#include "Painter.hpp"
#include "Render/DisplayList.hpp"

namespace render {

class Compositor {
public:
    const Bitmap &draw(const Scene &scene);
    const std::vector<PixelRect> &repainted() const { return repainted_; }
    // What was done so far for the backdrops of the last scene.
    MaterialSource::Work materialWork() const;

private:
    // An item whose picture changes because of what changed below its backdrop.
    struct Spread {
        int index;
        PixelRect area;
    };

    void resize(const Scene &scene);
    void addMaterials();
    void mark(const PixelRect &area);
    void markChanges(const Items &before, const std::vector<Change> &changes);
    void updateMaterials(const Items &before, const std::vector<Change> &changes);
    void paintTile(cairo_surface_t *surface, int tile, int limit);
    void paintMarked();

    Scene scene_;
    Items items_; // refer to the scene's nodes
    Bitmap canvas_;
    TileGrid grid_;
    std::vector<bool> marked_; // tiles to paint
    std::vector<PixelRect> repainted_;
    PaintResources resources_;
};

} // namespace render

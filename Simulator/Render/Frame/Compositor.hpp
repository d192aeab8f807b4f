// Keeps the picture of one screen and paints what changes from frame to frame.
#pragma once

#include "Changes.hpp"
#include "Painter.hpp"
#include "Render/DisplayList.hpp"

#include "Underlays.hpp"
#include <limits>

namespace render {

class Compositor {
public:
    const Bitmap &draw(const Scene &scene);
    const std::vector<PixelRect> &repainted() const { return repainted_; }
    // What was done so far for the backdrops of the last scene.
    MaterialSource::Work materialWork() const;

private:
    static constexpr int kNone = std::numeric_limits<int>::max();

    // An item whose picture changes because of what changed below its backdrop.
    struct Spread {
        int index;
        PixelRect area;
    };

    void resize(const Scene &scene);
    void addMaterials();
    // The item `index` looks different in `area`.
    void mark(const PixelRect &area, int index);
    void markChanges(const Items &before, const std::vector<Change> &changes);
    void updateMaterials(const Items &before, const std::vector<Change> &changes);
    void dropUnderlays(const Items &before, const std::vector<Change> &changes);
    // Paints the items before `limit` over all that the surface, of the tile's size, shows.
    void paintTile(cairo_surface_t *surface, int tile, int limit);
    // Valid until the next call.
    const Bitmap &pictureBelow(int tile, int limit);
    void paintMarked();

    Scene scene_;
    Items items_; // refer to the scene's nodes
    Bitmap canvas_;
    TileGrid grid_;
    std::vector<bool> marked_; // tiles to paint
    std::vector<int> lowest_;  // by tile: the first item that changed in this frame; or kNone
    Underlays underlays_;
    Bitmap scratch_; // a picture below a backdrop that cannot be kept
    std::vector<PixelRect> repainted_;
    PaintResources resources_;
};

} // namespace render

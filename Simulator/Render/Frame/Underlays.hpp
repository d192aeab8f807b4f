// What tiles looked like before some of their items were painted: there painting goes on in the next frame,
// and for the next backdrop of the same frame, when nothing has changed below. A panel that moves over a home
// screen costs a copy of the home screen.
#pragma once

#include "Items.hpp"
#include "TileGrid.hpp"

namespace render {

class Underlays {
public:
    struct Underlay {
        int limit = 0; // the items before it are painted
        Bitmap picture;
        int used = 0; // the last frame that it served in
    };

    Underlays() = default;
    explicit Underlays(const TileGrid &grid) : grid_(grid), kept_(grid.count()) {}

    // The item `index` has changed in `area`: what it is painted in is no longer good.
    void drop(const PixelRect &area, int index);
    // A new frame: from now on indexes are those of `now`. What was kept for an item that is gone is dropped.
    void renumber(const Items &before, const Items &now);

    // That with the highest limit up to `limit`; nullptr: there is none. Valid until the next call.
    //
    // Painting can begin at its item, even when something round the item is put together apart by now: had
    // that anything else in this tile, it would have changed as a whole, and the underlay would be gone.
    const Underlay *find(int tile, int limit);
    // Painting has to be able to begin at `limit`.
    const Bitmap &keep(int tile, int limit, Bitmap picture);

private:
    TileGrid grid_;
    std::vector<std::vector<Underlay>> kept_; // by tile
    int frame_ = 0;
};

} // namespace render

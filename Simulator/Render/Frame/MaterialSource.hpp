// What shows through one backdrop: the picture below it, reduced, blurred and coloured. Each of its pixels
// depends only on the picture below and on the style; so fading, cropping, moving or resizing the backdrop
// leaves what is known of it valid.
#pragma once

#include "Material.hpp"
#include "Render/Basics/Cairo.hpp"
#include "TileGrid.hpp"

#include <functional>

namespace render {

class MaterialSource {
public:
    MaterialSource(const TileGrid &grid, double scale, const Backdrop &style);

    const Backdrop &style() const { return style_; }
    // How far a pixel below shows, in pixels: blurred, and one cell more by enlarging, from any place in its
    // cell.
    int reach() const { return (steps_.reach() + 2) * factor_; }

    // The picture below has changed in `area`.
    void drop(const PixelRect &area);

    // The picture below, of the tile's size; used at once.
    using PictureBelow = std::function<const Bitmap &(int tile)>;
    // The material of one tile, of the tile's size. `area`, in which the tile lies, is what the backdrop
    // covers at present, so that it is blurred in one go. Valid until the next call of this object.
    const Bitmap &tile(int tile, const PixelRect &area, const PictureBelow &pictureBelow);

    // How often the picture below was taken for a tile, and how often an area was blurred; for
    // measurements.
    struct Work {
        int painted = 0, blurred = 0;
    };
    const Work &work() const { return work_; }

private:
    PixelRect cellsOf(const PixelRect &area) const;
    void gather(const PixelRect &cells, const PictureBelow &pictureBelow);
    void blurArea(const PixelRect &area, const PictureBelow &pictureBelow);
    Bitmap enlarge(const PixelRect &tile) const;

    TileGrid grid_;
    Backdrop style_;
    int factor_;
    BlurSteps steps_;
    Bitmap below_;                 // the whole screen, reduced
    std::vector<bool> gathered_;   // which tiles of it are up to date
    Bitmap blurred_;               // what `ready_` needs, as far as it was asked for
    PixelRect blurredCells_;       // where that lies on the reduced screen
    PixelRect ready_;              // whole tiles, in pixels
    std::vector<Bitmap> enlarged_; // by tile; empty: not known
    Work work_;
};

} // namespace render

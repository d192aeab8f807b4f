// The screen in squares. A square is the unit of repainting: it is always painted as a whole and by itself,
// so its pixels do not depend on what else is painted, nor on when.
#pragma once

#include "Render/Basics/Transforms.hpp"

namespace render {

class TileGrid {
public:
    static constexpr int kSide = 96; // a multiple of every factor by which backdrops are reduced

    TileGrid() = default;
    TileGrid(int width, int height)
        : width_(width), height_(height), columns_((width + kSide - 1) / kSide),
          rows_((height + kSide - 1) / kSide) {}

    int count() const { return columns_ * rows_; }
    PixelRect screen() const { return {0, 0, width_, height_}; }
    PixelRect rect(int tile) const {
        return intersect(screen(), {tile % columns_ * kSide, tile / columns_ * kSide, kSide, kSide});
    }
    // The tile that a pixel of the screen lies in.
    int at(int x, int y) const { return y / kSide * columns_ + x / kSide; }

    // Calls `visit` with each tile that `area` touches.
    template <typename Visit>
    void forEach(const PixelRect &area, const Visit &visit) const {
        PixelRect part = intersect(screen(), area);
        if (part.empty()) return;
        for (int row = part.y / kSide; row <= (part.y + part.height - 1) / kSide; row++)
            for (int column = part.x / kSide; column <= (part.x + part.width - 1) / kSide; column++)
                visit(row * columns_ + column);
    }

    // The smallest area of whole tiles round `area`, as far as it lies on the screen.
    PixelRect widened(const PixelRect &area) const {
        PixelRect part = intersect(screen(), area);
        if (part.empty()) return part;
        int x = part.x / kSide * kSide, y = part.y / kSide * kSide;
        int right = (part.x + part.width + kSide - 1) / kSide * kSide;
        int bottom = (part.y + part.height + kSide - 1) / kSide * kSide;
        return intersect(screen(), {x, y, right - x, bottom - y});
    }

private:
    int width_ = 0, height_ = 0, columns_ = 0, rows_ = 0;
};

} // namespace render

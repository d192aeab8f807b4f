// Where things stand on the home screen, in points.
#pragma once

#include "Render/Geometry.hpp"

#include <cstddef>

namespace sim {

struct HomeLayout {
    render::Size screen;
    int columns = 4, rows = 0;
    double icon = 0;             // the side of an icon
    double left = 0, top = 0;    // of the first icon
    double across = 0, down = 0; // from one icon to the next
    double dockHeight = 0;       // the dock ends at the bottom of the screen
    double dockIconTop = 0;      // within the dock
    double pageDots = 0;         // their middle

    size_t perPage() const { return static_cast<size_t>(columns * rows); }
    // On its page; `index` counts from 0 along the rows.
    render::Rect iconFrame(size_t index) const;
    // In the dock's own coordinates: `count` icons stand around its middle.
    render::Rect dockIconFrame(size_t index, size_t count) const;
    render::Rect dockFrame() const { return {0, screen.height - dockHeight, screen.width, dockHeight}; }
};

// `screen` as seen upright: wider than high on its side.
HomeLayout homeLayout(bool pad, render::Size screen);

} // namespace sim

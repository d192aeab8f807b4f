#include "HomeLayout.hpp"

#include <span>

namespace sim {

namespace {

struct Grid {
    double height; // of the screen; the grid of the tallest one that fits is taken
    int rows;
    double top, down;
    double dockHeight, dockIconTop;
    double dotsAboveDock;
};

constexpr Grid kPhones[] = {
    {480, 4, 27, 88, 96, 10, 8},
    {568, 5, 27, 88, 96, 10, 9},
    {667, 6, 28, 88, 96, 10, 13},
    {736, 6, 38, 100, 96, 10, 14},
};
constexpr Grid kPad = {1024, 5, 70, 165, 126, 18, 22};
// On its side; inferred, for phones above all.
constexpr Grid kTurnedPhones[] = {{320, 2, 27, 88, 96, 10, 9}, {414, 3, 30, 88, 96, 10, 9}};
constexpr Grid kTurnedPad = {768, 4, 55, 143, 126, 18, 22};

Grid tallestThatFits(std::span<const Grid> grids, double height) {
    Grid result = grids.front();
    for (const auto &candidate : grids)
        if (candidate.height <= height) result = candidate;
    return result;
}

bool isTurned(render::Size screen) { return screen.width > screen.height; }

Grid grid(bool pad, render::Size screen) {
    if (pad) return isTurned(screen) ? kTurnedPad : kPad;
    if (isTurned(screen)) return tallestThatFits(kTurnedPhones, screen.height);
    return tallestThatFits(kPhones, screen.height);
}

int columns(bool pad, render::Size screen) {
    if (!isTurned(screen)) return 4;
    return pad || screen.width < 667 ? 5 : 6;
}

// The margin at the sides, by the width of the screen.
double margin(bool pad, render::Size screen) {
    if (pad) return isTurned(screen) ? 110 : 92;
    if (isTurned(screen)) return 40;
    return screen.width >= 414 ? 35 : screen.width >= 375 ? 27 : 16;
}

} // namespace

HomeLayout homeLayout(bool pad, render::Size screen) {
    constexpr double kPhoneIcon = 60, kPadIcon = 76;
    Grid chosen = grid(pad, screen);
    HomeLayout result;
    result.screen = screen;
    result.columns = columns(pad, screen);
    result.rows = chosen.rows;
    result.icon = pad ? kPadIcon : kPhoneIcon;
    result.left = margin(pad, screen);
    result.top = chosen.top;
    result.across = (screen.width - 2 * result.left - result.icon) / (result.columns - 1);
    result.down = chosen.down;
    result.dockHeight = chosen.dockHeight;
    result.dockIconTop = chosen.dockIconTop;
    result.pageDots = screen.height - chosen.dockHeight - chosen.dotsAboveDock;
    return result;
}

render::Rect HomeLayout::iconFrame(size_t index) const {
    auto column = static_cast<double>(index % static_cast<size_t>(columns));
    auto row = static_cast<double>(index / static_cast<size_t>(columns));
    return {left + column * across, top + row * down, icon, icon};
}

render::Rect HomeLayout::dockIconFrame(size_t index, size_t count) const {
    double width = static_cast<double>(count - 1) * across + icon;
    return {(screen.width - width) / 2 + static_cast<double>(index) * across, dockIconTop, icon, icon};
}

} // namespace sim

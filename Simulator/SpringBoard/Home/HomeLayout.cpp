#include "HomeLayout.hpp"

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

Grid grid(const Device &device) {
    if (device.pad) return kPad;
    Grid result = kPhones[0];
    for (const auto &candidate : kPhones)
        if (candidate.height <= device.height) result = candidate;
    return result;
}

// The margin at the sides, by the width of the screen.
double margin(const Device &device) {
    if (device.pad) return 92;
    return device.width >= 414 ? 35 : device.width >= 375 ? 27 : 16;
}

} // namespace

HomeLayout homeLayout(const Device &device) {
    constexpr double kPhoneIcon = 60, kPadIcon = 76;
    Grid chosen = grid(device);
    HomeLayout result;
    result.screen = {device.width, device.height};
    result.rows = chosen.rows;
    result.icon = device.pad ? kPadIcon : kPhoneIcon;
    result.left = margin(device);
    result.top = chosen.top;
    result.across = (device.width - 2 * result.left - result.icon) / (result.columns - 1);
    result.down = chosen.down;
    result.dockHeight = chosen.dockHeight;
    result.dockIconTop = chosen.dockIconTop;
    result.pageDots = device.height - chosen.dockHeight - chosen.dotsAboveDock;
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

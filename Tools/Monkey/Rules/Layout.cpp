// Where the panel and its items stand at rest, on a device that is held upright: by the numbers that a
// designer would measure on the screen.
#include "Rules.hpp"
#include "Scene.hpp"
#include "Settings.hpp"

#include <cmath>
#include <cstdlib>

namespace sim {

namespace {

constexpr double kTolerance = 0.51;      // points
constexpr double kPad = 768, kBig = 375; // widths of a screen from which a device is an iPad, or a big one

bool isNear(double one, double other) { return std::abs(one - other) <= kTolerance; }

struct Grid {
    double width, gap; // of a cell, and before each
    int rows;
    bool paging;

    double x(size_t index) const {
        const auto place = static_cast<double>(index), page = paging ? std::floor(place / rows) : 0;
        return gap + place * (gap + width) + page * gap;
    }
};

int rowsOf(const Value &settings, bool pad) {
    const Value &amount = settings["amount"];
    int rows = 0;
    if (amount.isString()) rows = std::atoi(amount.string().c_str());
    if (amount.isNumber()) rows = static_cast<int>(amount.number());
    if (amount.isBool()) rows = amount.boolean();
    return rows > 0 ? rows : pad ? 4 : 3;
}

Grid gridOf(const Moment &moment, double panelWidth) {
    const Observation &seen = moment.now;
    const bool pad = seen.screenWidth >= kPad, big = seen.screenWidth >= kBig;
    Grid grid{.rows = rowsOf(moment.settings, pad), .paging = isOn(moment.settings, "paging")};
    grid.width = seen.iconWidth - (!big && grid.rows > 3 ? 3 : 0);
    grid.gap = (panelWidth - grid.width * grid.rows) / (grid.rows + 1);
    return grid;
}

void checkItems(const Scene &scene, const Grid &grid, Findings &findings) {
    for (size_t i = 0; i < scene.items.size(); ++i) {
        const SceneItem &item = scene.items[i];
        if (!isNear(item.frame.x, grid.x(i)) || !isNear(item.frame.w, grid.width))
            findings.push_back(item.identifier + ", number " + std::to_string(i + 1) + ", stands at " +
                               std::to_string(item.frame.x) + " and is " + std::to_string(item.frame.w) +
                               " wide, where " + std::to_string(grid.x(i)) + " and " +
                               std::to_string(grid.width) + " are right");
        if (!isNear(item.frame.y, scene.items[0].frame.y))
            findings.push_back(item.identifier + " does not stand in line with the others");
    }
    const size_t pages = grid.paging ? (scene.items.size() + static_cast<size_t>(grid.rows) - 1) /
                                           static_cast<size_t>(grid.rows)
                                     : 0;
    if (scene.dots != pages)
        findings.push_back("there are " + std::to_string(scene.dots) + " page dots for " +
                           std::to_string(pages) + " pages");
}

// An indicator that has gone leaves the panel where it was, when the device turns as well.
void checkPanel(const Moment &moment, const Memory &memory, const Scene &scene, Findings &findings) {
    const Observation &seen = moment.now;
    const bool inPlace = memory.adrift || isNear(scene.panel.x, seen.screenWidth / 10);
    if (!inPlace || !isNear(scene.panel.w, seen.screenWidth * 0.8))
        findings.push_back("the panel stands at " + std::to_string(scene.panel.x) + " and is " +
                           std::to_string(scene.panel.w) + " wide");
    const double height = seen.iconHeight + 36 + (isOn(moment.settings, "paging") ? 10 : 0);
    const bool plain = !scene.question && !isOn(moment.settings, "ca");
    if (plain && !isNear(scene.panel.h, height))
        findings.push_back("the panel is " + std::to_string(scene.panel.h) + " high, where " +
                           std::to_string(height) + " is right");
}

} // namespace

void checkLayout(const Moment &moment, Memory &memory, Findings &findings) {
    std::optional<Scene> scene = sceneAtRest(moment, memory.scene);
    if (!scene || scene->face) return;
    checkPanel(moment, memory, *scene, findings);
    checkItems(*scene, gridOf(moment, scene->panel.w), findings);
}

} // namespace sim

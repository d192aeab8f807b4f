// The panel as somebody sees it who looks at the overlay: nothing of it comes from the extension's variables
// or log.
#pragma once

#include "Tools/Monkey/Observation.hpp"

#include <optional>

namespace sim {

struct SceneItem {
    std::string identifier;
    Area place;          // of its icon on the screen, upright, in points
    Area frame;          // on the strip
    std::string name;    // as it is written below
    std::string badge;   // the number on it; empty without one that can be seen
    bool marked = false; // its close mark can be seen
};

struct Scene {
    Area panel;                   // on the screen, upright
    std::vector<SceneItem> items; // in their order on the strip
    std::string emptyText;        // what the strip says when it holds nothing
    size_t dots = 0;              // of pages
    bool face = false;            // one of the lock's faces is there
    bool question = false;        // whether to clear all is asked
    Area cancel, okay;            // its buttons on the screen
    bool moving = false;          // an animation is under way somewhere in the overlay

    bool marks() const;
    std::vector<std::string> identifiers() const;
};

// Nothing while there is no panel, or more than one.
std::optional<Scene> sceneOf(const Observation &seen);

// Whether the point lies in the area, and at least `inside` points from its edges.
bool covers(const Area &area, double x, double y, double inside = 0);

} // namespace sim

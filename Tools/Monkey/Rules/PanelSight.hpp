// The panel and its lock as a person sees them at one moment.
#pragma once

#include "Tools/Monkey/Observation.hpp"

#include <map>

namespace sim {

struct PanelSight {
    enum class Phase { none, open, closing };
    Phase phase = Phase::none;
    bool resting = true; // neither the panel nor anything that fills it moves
    // Which faces there are to be seen.
    bool question = false, finger = false, keypad = false;
    bool list = false; // the strip, whatever is on it
    // Where to touch the keypad that is seen, upright: digits, and the button that takes one back.
    std::map<char, Area> keys;
    Area button;

    bool open() const { return phase == Phase::open; }
    bool face() const { return question || finger || keypad; }
};

PanelSight sightOf(const Observation &seen);

} // namespace sim

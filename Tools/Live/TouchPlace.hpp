// Where a finger lands, as a script names it: by what it touches, where something names that, and by its
// coordinates where nothing does.
#pragma once

#include "LivePhone.hpp"

#include <string>
#include <string_view>

namespace sim {

struct TouchPlace {
    double x = 0, y = 0; // where the touch is to land; near the middle of what is named: its middle
    std::string target;  // the argument of a touch that lands there: "{10, 20}", "item(\"Mail\")"
    std::string tap;     // a call that taps there, where there is a better word: "pane:toggle(\"Enable\")"
};

// A point of the screen seen upright. `object` is "phone" or "pane", `screen` the screen that it stands for.
TouchPlace placeOfTouch(LivePhone &phone, SimulatedScreen &screen, std::string_view object, double x,
                        double y);

} // namespace sim

// What a hand needs to see of a device to touch more than empty space: cheap, and changes nothing.
#pragma once

#include "Tools/Live/LivePhone.hpp"

namespace sim {

// The middle of what is shown of a view that takes touches, upright.
struct Place {
    double x, y;
    int64_t tag;
};

struct Snapshot {
    std::vector<Place> overlay;   // of the windows that are the extension's
    std::vector<Place> statusBar; // the items that somebody can tap

    // More than what always lies there.
    bool panelOpen() const;
    // Where the panel's items are.
    std::vector<Place> items() const;
    // The key of a keypad with that digit; nullptr when none is shown.
    const Place *key(char digit) const;
};

// Empty when the home screen dies over it, which its events tell.
Snapshot look(LivePhone &phone);

} // namespace sim

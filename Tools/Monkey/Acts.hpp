// What can be done to a device, by family. Each act knows how likely it is at the moment and how a script
// writes it down.
#pragma once

#include "Hand.hpp"

#include <span>

namespace sim {

struct Act {
    const char *name; // for the summary
    // How likely it is beside the others, which add up to some hundreds; 0 when it cannot be done.
    int (*weight)(const Hand &hand);
    // One line of calls.
    std::string (*line)(Hand &hand);
    int rarity = 1; // divides the weight, for what takes long
};

std::span<const Act> timeActs();
std::span<const Act> touchActs();
std::span<const Act> fingerActs(); // several fingers, and fingers that stay
std::span<const Act> homeScreenActs();
std::span<const Act> lockActs();
std::span<const Act> unlockActs(); // of the panel's own lock
std::span<const Act> settingsActs();
std::span<const Act> paneActs();
std::span<const Act> paneTourActs(); // through Settings, page by page, with time for each
std::span<const Act> holdActs();     // a finger that stays while the panel changes under it
std::span<const Act> paneHandActs(); // two fingers in Settings, and coming back to its pages
std::span<const Act> examActs();     // single acts from rest, with time for what they lead to

struct Event {
    const char *act;
    std::string line;
};

// The next thing to do, after a look: what was planned, or what chance chooses.
Event chooseEvent(Hand &hand);

// The names of all acts, in order.
std::vector<std::string> actNames();

} // namespace sim

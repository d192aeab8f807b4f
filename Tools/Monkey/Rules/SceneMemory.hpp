// What somebody remembers who watches a phone: the badges as they changed, the fingers on the glass, how the
// device is held, and since when the panel has stood still.
#pragma once

#include "Scene.hpp"

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace sim {

struct BadgeMemory {
    std::vector<std::string> order;       // of those with a badge, the last change first
    std::map<std::string, int64_t> value; // as it was seen last
    std::set<std::string> unsure;         // may be listed or not: they were hidden when their badge changed
    std::set<std::string> unordered;      // may be listed anywhere: in folders, and those found at the start
};

struct SceneMemory {
    BadgeMemory badges;
    std::set<int> fingers;  // that stay down
    bool upright = true;    // the device is held so; a restart changes nothing in that
    bool mixed = false;     // settings changed while this panel was open, so that it is of two kinds
    bool asBooted = true;   // nobody changed the settings since the home screen started
    int64_t settingsAt = 0; // when they changed last, at a look
    int64_t touchedAt = 0;  // when a finger was on the glass last
    std::vector<Area> places;
    int64_t steadySince = 0; // since when the panel's items have been at `places`, at every look; nanoseconds
};

} // namespace sim

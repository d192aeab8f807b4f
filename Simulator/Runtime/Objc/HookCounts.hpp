// How often the two sides of each hooked method ran: the replacement was entered, the previous implementation
// went on from there.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace sim {

// One hooked method in one state of the watched variables.
struct HookCount {
    std::string className, selector;
    unsigned state = 0; // a bit for each watched variable that was not zero when the replacement was entered
    uint64_t entered = 0, previous = 0;
};

// From now on counts are kept apart by these bytes, at most three. Their owners outlive the process.
void watchAtHooks(std::vector<const signed char *> variables);

// What ran since the last call, in the order of installation; what did not run is left out.
std::vector<HookCount> takeHookCounts();

} // namespace sim

// One session of a device: from a boot through a number of events. What a run is cut into, and what is done
// again when something is broken.
#pragma once

#include "Shrink.hpp"
#include "Tally.hpp"

#include "Supervisor/Machine/SimulatedDevice.hpp"

#include <functional>

namespace sim {

struct SessionPlan {
    uint64_t seed = 0;
    Value given;        // options of `boot` that are not left to chance
    int64_t events = 0; // the most
};

struct Session {
    Value boot;                      // the table of `boot`
    Lines lines;                     // what was done
    std::vector<std::string> broken; // by the last line, or by the device's end; empty when all was well
    bool interrupted = false;
    Tally tally;
};

// Hears of every line before it is done.
using Listener = std::function<void(const std::string &line)>;

// The same plan always gives the same session. Throws BootError when there is no such device.
Session live(const DeviceSetup &setup, const SessionPlan &plan, const Listener &listener);

// The boot as a line of a script.
std::string bootLine(const Value &boot);

} // namespace sim

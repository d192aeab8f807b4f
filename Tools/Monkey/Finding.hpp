// What was found, made short.
#pragma once

#include "Session.hpp"

#include <filesystem>

namespace sim {

struct Finding {
    Value boot;
    Lines lines;
    std::vector<std::string> broken; // a sentence each
    bool repeats = false;            // the same rule breaks when the session is done again
};

// Leaves out what it does not take, of the lines and of what was chosen for the boot, as far as that many
// replays lead. `given` stays as it is.
Finding shortened(const DeviceSetup &setup, const Session &session, const Value &given, size_t mostReplays);

} // namespace sim

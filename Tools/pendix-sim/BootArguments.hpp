// What several commands take: of all their devices, and of the one that they boot.
#pragma once

#include "Options.hpp"
#include "Runtime/Values/Value.hpp"
#include "Supervisor/Machine/SimulatedDevice.hpp"

#include <map>
#include <string>
#include <vector>

namespace sim {

struct SetupArguments {
    std::vector<std::string> extensions;
    bool fresh = false, debugger = false;

    void describe(Options &options);
    // Throws std::runtime_error when the build is not complete.
    DeviceSetup setup() const;
};

struct BootArguments : SetupArguments {
    std::string json;
    std::map<std::string, std::string> texts; // single options of `boot`
    std::vector<std::string> settings;

    void describe(Options &options);
    // The table of `boot`. Throws std::runtime_error for what is none.
    Value table() const;
};

} // namespace sim

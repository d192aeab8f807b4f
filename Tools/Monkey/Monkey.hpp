// Random events on random devices, with an eye on what must hold whatever is done.
#pragma once

#include "Supervisor/Script/Script.hpp"

namespace sim {

struct MonkeyOptions {
    int64_t seed = 1;
    int64_t events = 10'000;
    int64_t sessionEvents = 1000;                // of one session, the most
    Value boot;                                  // options of `boot` that are not left to chance
    std::filesystem::path script = "monkey.lua"; // for what was found
    std::filesystem::path progress;              // kept up so that a run can go on; empty: not kept
    std::filesystem::path trace;                 // every line that is done; empty: none
    int64_t mostReplays = 400;                   // while a finding is made short
};

// Prints progress on the standard error stream, and on the standard output what was found or a summary.
// `failed` when something was found, `refused` when it was interrupted. Throws BootError for a device that
// there is not, and std::runtime_error when a file cannot be written or `progress` is of another run.
Outcome runMonkey(const DeviceSetup &setup, const MonkeyOptions &options);

// Does what such a script does once more, line by line, and looks after each: `failed` when something is
// broken. Throws std::runtime_error when the file is none.
Outcome replayFinding(const DeviceSetup &setup, const std::filesystem::path &file);

} // namespace sim

// What a home-screen process is told before it launches.
#pragma once

#include "SimulatedDevice.hpp"

namespace sim {

// `root` is the folder of the device's file system, `now` where the clock starts, in nanoseconds.
Object bootMessage(const DeviceSetup &setup, const BootOptions &options, const std::filesystem::path &root,
                   int64_t now);

} // namespace sim

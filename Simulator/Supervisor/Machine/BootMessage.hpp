// What the processes of a device are told when they boot.
#pragma once

#include "SimulatedDevice.hpp"

namespace sim {

// `root` is the folder of the device's file system, `now` where the clock starts.
BootMessage bootMessage(const DeviceSetup &setup, const BootOptions &options,
                        const std::filesystem::path &root, Nanos now);

} // namespace sim

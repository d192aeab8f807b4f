// What every simulated process does first, whatever it then becomes.
#pragma once

#include "Runtime/Values/Boot.hpp"

namespace sim {

// Sets up the sandbox, the device and the clock, and leaves the process with the classes and methods of the
// device's system version.
void bootDevice(const BootMessage &message);

} // namespace sim

// What is said of a device when something on it is not as it should be.
#pragma once

#include "SimulatedScreen.hpp"

#include <string>

namespace sim {

// The tree of the window in front and the last events. Says why when the process cannot be asked.
std::string deviceReport(SimulatedScreen &screen);

} // namespace sim

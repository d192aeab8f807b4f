// Time that passes for long enough that somebody may want to know how far it is, or to stop it.
#pragma once

#include "SimulatedScreen.hpp"

namespace sim {

// As SimulatedScreen::advance(), but throws std::runtime_error soon after an interrupt, and tells a person at
// a terminal how far it is.
void waitLong(SimulatedScreen &screen, int64_t duration);

} // namespace sim

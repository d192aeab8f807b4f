#pragma once

namespace sim {

// Before a press of the home button does anything else, listeners hear of it. true when one took it for
// itself.
bool sendActivatorDeactivateEvent();

} // namespace sim

// A word on settings that the extension does not know.
#pragma once

#include "SimulatedScreen.hpp"

namespace sim {

// A warning event for each, when the device has the extension and the build lists its settings.
void remarkSettings(SimulatedScreen &screen, const Installation &installation, const Object &values);

} // namespace sim

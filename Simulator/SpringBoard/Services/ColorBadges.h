// The other extension that gives each badge a colour.
#pragma once

#include "SpringBoard/HomeScreen.h"

namespace sim {

// Without the option its class is hidden. Before any library is loaded.
void installColorBadges(const SharedOptions &options);

} // namespace sim

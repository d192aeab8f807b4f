// Where a finger finds something to touch.
#pragma once

#include "Runtime/Values/Value.hpp"

#include <string>
#include <vector>

namespace sim {

// [[window, x, y, tag]] of every view in these windows (by the names of windowName) that is shown, takes
// touches and has recognisers or is a control; x and y are the middle of the part that is on the screen,
// upright. In drawing order.
Value touchablePlaces(const std::vector<std::string> &windows);

} // namespace sim

// What the list says of applications, wherever it is drawn.
#pragma once

#include "Tools/Monkey/Observation.hpp"

#include <set>

namespace sim {

// The strip in the panel at that place of the window; npos without one.
size_t stripIn(const SeenWindow &window, size_t panel);

// Names that the strip's items show; what the list says when it is empty tells of no application, and a face
// may say it as well. One that is as short as a digit could be a key's.
std::set<std::string> namesIn(const SeenWindow &window, size_t strip);

} // namespace sim

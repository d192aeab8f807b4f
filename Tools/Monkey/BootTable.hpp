// The device that a session begins with.
#pragma once

#include "Random.hpp"
#include "Runtime/Values/Value.hpp"

namespace sim {

// A table of `boot` that `random` decides; what `given` names stays as it is there. A device that keeps its
// `root` always gets its settings written, so that it starts the same every time. Throws BootError when
// `given` names no device that there was.
Value bootTable(Random &random, const Value &given);

// The identifiers of the applications of such a table.
std::vector<std::string> applicationsOf(const Value &table);

} // namespace sim

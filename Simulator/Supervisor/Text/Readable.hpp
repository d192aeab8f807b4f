// Values as a person reads them, and where two of them differ.
#pragma once

#include "Runtime/Values/Value.hpp"

#include <optional>
#include <string>

namespace sim {

// As a script would write it: nil, true, 1.5, "text", {1, 2}, {x = 1, ["a b"] = 2}. Deep values are cut
// short.
std::string readable(const Value &value);

// One sentence on the first place where the two differ ("at .screen.x: 10, wanted 12"), nothing when they are
// equal. Integers equal reals of the same value, an empty list equals an empty table.
std::optional<std::string> firstDifference(const Value &actual, const Value &wanted);

} // namespace sim

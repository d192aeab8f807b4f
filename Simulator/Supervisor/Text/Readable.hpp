// Values in a script's notation, for people and for scripts, and where two of them differ.
#pragma once

#include "Runtime/Values/Value.hpp"

#include <optional>
#include <string>

namespace sim {

// For people: nil, true, 1.5, "text", {1, 2}, {x = 1, ["a b"] = 2}. Numbers are rounded, deep values cut
// short.
std::string readable(const Value &value);
// For a script, in one line: what it reads there is the value again. Throws ValueError for bytes and dates of
// a property list, which scripts cannot write down.
std::string luaText(const Value &value);

// One sentence on the first place where the two differ ("at .screen.x: 10, wanted 12"), nothing when they are
// equal. Integers equal reals of the same value, an empty list equals an empty table.
std::optional<std::string> firstDifference(const Value &actual, const Value &wanted);

} // namespace sim

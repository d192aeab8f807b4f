// Values as bytes that give the same value again, of any kind: for keeping many of them in a file.
#pragma once

#include "Value.hpp"

namespace sim {

// Appends the value to `bytes`.
void pack(const Value &value, std::string &bytes);
// Takes the first value off the front of `bytes`, which pack() has made.
Value unpack(std::string_view &bytes);

// About what the value takes of memory, in bytes.
size_t weight(const Value &value);

} // namespace sim

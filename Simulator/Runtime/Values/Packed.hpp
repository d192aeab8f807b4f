// Values as bytes that give the same value again: for keeping many of them in a file, and for what processes
// of one machine tell each other.
#pragma once

#include "Value.hpp"

namespace sim {

// Appends the value to `bytes`.
void pack(const Value &value, std::string &bytes);
// The same as it would come out of JSON: in texts, bytes that are not UTF-8 are replaced, and numbers that
// are none are null. Data and dates, which have no such form, stay what they are.
void packPlain(const Value &value, std::string &bytes);
// Takes the first value off the front of `bytes`, which one of these has made.
Value unpack(std::string_view &bytes);

// About what the value takes of memory, in bytes.
size_t weight(const Value &value);

} // namespace sim

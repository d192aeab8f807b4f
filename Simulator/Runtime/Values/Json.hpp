// One line of JSON to a value and back: the form in which supervisor and children talk.
#pragma once

#include "Value.hpp"

namespace sim {

// Throws ValueError on text that is no JSON. Numbers without fraction or exponent become integers.
Value parseJson(std::string_view text);

// One line without line breaks; bytes that are not UTF-8 are replaced. Data and dates have no JSON form
// and throw ValueError.
std::string toJson(const Value &value);

} // namespace sim

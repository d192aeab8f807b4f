// Property lists to try things on, and another reader's opinion on them.
#pragma once

#include "Runtime/Values/Value.hpp"

#include <random>
#include <string>

namespace samples {

// A dictionary with every kind of value that a property list has.
sim::Value everyKind();
// Whatever a property list can hold, at most `depth` containers deep. Dates are whole seconds.
sim::Value random(std::mt19937 &generator, int depth);

// The same content in the binary form, and as XML of other layout, both written by libplist.
std::string binary(const std::string &xml);
std::string otherXml(const std::string &xml);

} // namespace samples

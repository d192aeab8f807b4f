// Settings files as nobody should write them: what a file of months of use becomes when its values change
// their kinds and its bytes change their places.
#pragma once

#include "Runtime/Values/Value.hpp"

#include <cstdint>
#include <string>
#include <vector>

namespace faults {

// Every setting with a value of the right kind, and those of two applications.
sim::Object wholeSettings();
// The names of the global settings, sorted.
const std::vector<std::string> &settingNames();

// The file of that number, the same on every run; mostly malformed, some only odd. Never empty of bytes by
// accident alone: about one in a hundred is.
std::string oddSettingsFile(uint64_t number);

} // namespace faults

// The settings file as the extension reads it: what is absent or of the wrong kind is NO.
#pragma once

#include "Runtime/Values/Value.hpp"

#include <string>
#include <vector>

namespace sim {

// What `boolValue` makes of the value: numbers but zero are YES, and texts that begin with Y, y, T, t or a
// number other than zero.
bool isYes(const Value &value);
bool isOn(const Value &settings, std::string_view key);
// Whether the application is to be left out of the badge list.
bool isHidden(const Value &settings, const std::string &application);
// Whether one of the listed applications is not left out.
bool hasListed(const Value &settings, const std::vector<std::string> &applications);

} // namespace sim

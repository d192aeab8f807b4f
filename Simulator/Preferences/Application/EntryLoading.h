#pragma once

#include <string>

namespace sim {

// Loads the library of a bundle, by its path on the device, unless that has been done. What went wrong; empty
// when nothing did.
std::string loadExecutable(const std::string &devicePath);

} // namespace sim

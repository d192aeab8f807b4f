// Findings as scripts: written for `pendix-sim run`, and read again.
#pragma once

#include "Finding.hpp"

namespace sim {

// As a script for `pendix-sim run`, with what broke at its head. `origin` says how it was found.
std::string findingScript(const DeviceSetup &setup, const Finding &finding, const std::string &origin);

// The boot and the lines of such a script, which may have been edited as long as a line stays a line. Throws
// std::runtime_error when the file is none.
Finding readFinding(const std::filesystem::path &file);

} // namespace sim

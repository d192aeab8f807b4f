#pragma once

#include "ChildProcess.hpp"

#include <string>

namespace sim {

// A crash report as text that is the same on every run: without the addresses of objects.
std::string crashText(const std::string &report);
// What a process that ended badly left, for people; empty for a clean end. `who` starts the sentence.
std::string troublesOf(const Ending &ending, const std::string &who);

} // namespace sim

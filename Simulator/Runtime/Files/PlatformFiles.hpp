// The pictures that the simulated platform brings along, as files of the machine that simulates: outside the
// sandbox.
#pragma once

#include <optional>
#include <string>

namespace sim {

// Where they are; without it, and for files that are missing, whatever shows them draws something plain
// instead.
void setPlatformFolder(std::string path);
const std::string &platformFolder();

// The bytes of a file named relative to the folder; nothing when it cannot be read.
std::optional<std::string> readPlatformFile(const std::string &name);

} // namespace sim

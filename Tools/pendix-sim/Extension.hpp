// "new" and "build": extensions of somebody's own, by the clone's tools.
#pragma once

#include <string>
#include <vector>

namespace sim {

// Becomes that tool; returns never. Throws std::runtime_error when it cannot be started.
[[noreturn]] void becomeExtensionTool(std::vector<std::string> arguments);

} // namespace sim

// What a library imports, found among the platform's own.
#pragma once

#include <string>
#include <vector>

namespace sim {

// The address that a binding to `symbol` (with its leading underscore) gets; counted by kind. Null when the
// platform has none. Throws std::runtime_error for a function that cannot be called as the device calls it.
void *findImport(const std::string &symbol);

} // namespace sim

// Which classes a library names statically, so that it cannot be loaded where they are missing.
#pragma once

#include <string>
#include <vector>

namespace sim {

// Names of the classes, sorted, that the library in `file` (its bytes), of this machine's kind or of a
// device's, refers to by symbol and does not define. Throws std::runtime_error when the bytes are no such
// library.
std::vector<std::string> staticClasses(const std::string &file);

} // namespace sim

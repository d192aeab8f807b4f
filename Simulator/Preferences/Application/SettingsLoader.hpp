// Who loads libraries into the process.
#pragma once

#include <functional>
#include <string>

namespace sim {

// Takes the path on the device; throws with a text when that cannot be loaded.
using BundleLoader = std::function<void(const std::string &devicePath)>;
void setBundleLoader(BundleLoader loader);

} // namespace sim

// On other processors a device's code cannot run.
#include "Runtime/MachO/DeviceLibrary.hpp"

#include <stdexcept>

namespace sim {

void loadDeviceLibrary(const std::string &) {
    throw std::runtime_error("it holds a device's code, and this process is for another processor: "
                             "scripts/device-body runs one for aarch64");
}

void *deviceSymbol(const std::string &) { return nullptr; }

} // namespace sim

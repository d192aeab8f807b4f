#include "Device.hpp"

namespace sim {

Device &device() {
    static Device current;
    return current;
}

std::string toString(Version version) {
    return std::to_string(version.major) + "." + std::to_string(version.minor);
}

} // namespace sim

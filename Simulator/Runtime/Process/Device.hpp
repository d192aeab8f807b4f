// What device and system the simulated process runs on. Set once, before the first class of the platform is
// used.
#pragma once

#include <compare>
#include <string>

namespace sim {

struct Version {
    int major = 8, minor = 1;
    auto operator<=>(const Version &) const = default;
};

struct Device {
    std::string name = "iPhone 6";
    std::string machine = "iPhone7,2"; // "hw.machine"
    double width = 375, height = 667;  // points, portrait
    double scale = 2;
    bool pad = false;
    bool touchSensor = true;
    bool reachability = true;
    Version version;
    std::string language = "en";
};

// Only the host of a process changes it.
Device &device();

std::string toString(Version version); // "8.1"

} // namespace sim

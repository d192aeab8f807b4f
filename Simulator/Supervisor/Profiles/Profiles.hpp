// The devices that can be simulated, and the system versions that each of them ran.
#pragma once

#include <compare>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace sim {

struct Profile {
    const char *name;     // "iPhone 6"
    const char *machine;  // what the system calls it: "hw.machine"
    double width, height; // points, portrait
    double scale;         // pixels a point
    bool touchSensor;
    bool reachability;                  // from 8.0 on
    std::vector<const char *> versions; // oldest first

    bool pad() const { return std::string_view(name).starts_with("iPad"); }
    bool ran(std::string_view version) const;
};

// Phones first, each kind from the oldest to the newest.
std::span<const Profile> profiles();
// By name or by model identifier; nullptr when there is no such device.
const Profile *findProfile(std::string_view name);

// "8.0, 8.1 and 8.3"
std::string versionList(const Profile &profile);
// A table for people: a line a device.
std::string profileTable();

} // namespace sim

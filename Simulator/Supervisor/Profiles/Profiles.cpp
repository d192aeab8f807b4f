#include "Profiles.hpp"

#include <algorithm>
#include <cstdio>

namespace sim {

namespace {

const std::vector<const char *> kSevenOnly = {"7.0", "7.1"};
const std::vector<const char *> kAll = {"7.0", "7.1", "8.0", "8.1", "8.3"};
const std::vector<const char *> kFromEight = {"8.0", "8.1", "8.3"};
const std::vector<const char *> kFromEightOne = {"8.1", "8.3"};

} // namespace

bool Profile::ran(std::string_view version) const { return std::ranges::count(versions, version) > 0; }

std::span<const Profile> profiles() {
    static const Profile list[] = {
        {"iPhone 4", "iPhone3,1", 320, 480, 2, false, false, kSevenOnly},
        {"iPhone 4S", "iPhone4,1", 320, 480, 2, false, false, kAll},
        {"iPhone 5", "iPhone5,2", 320, 568, 2, false, false, kAll},
        {"iPhone 5s", "iPhone6,1", 320, 568, 2, true, false, kAll},
        {"iPhone 6", "iPhone7,2", 375, 667, 2, true, true, kFromEight},
        {"iPhone 6 Plus", "iPhone7,1", 414, 736, 3, true, true, kFromEight},
        {"iPad 2", "iPad2,1", 768, 1024, 1, false, false, kAll},
        {"iPad Air", "iPad4,1", 768, 1024, 2, false, false, kAll},
        {"iPad Air 2", "iPad5,3", 768, 1024, 2, true, false, kFromEightOne},
        {"iPad mini 3", "iPad4,7", 768, 1024, 2, true, false, kFromEightOne},
    };
    return list;
}

const Profile *findProfile(std::string_view name) {
    auto found = std::ranges::find_if(
        profiles(), [&](const Profile &profile) { return name == profile.name || name == profile.machine; });
    return found == profiles().end() ? nullptr : &*found;
}

std::string versionList(const Profile &profile) {
    std::string result;
    for (size_t i = 0; i < profile.versions.size(); ++i) {
        if (i) result += i + 1 == profile.versions.size() ? " and " : ", ";
        result += profile.versions[i];
    }
    return result;
}

std::string profileTable() {
    std::string result;
    for (const auto &profile : profiles()) {
        char line[160];
        snprintf(line, sizeof line, "%-14s %-10s %4g x %-4g @%gx  %s  iOS %s\n", profile.name,
                 profile.machine, profile.width, profile.height, profile.scale,
                 profile.touchSensor ? "sensor" : "      ", versionList(profile).c_str());
        result += line;
    }
    return result;
}

} // namespace sim

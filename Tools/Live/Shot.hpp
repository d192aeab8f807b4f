// A single picture of a device, without a script.
#pragma once

#include "LivePhone.hpp"

#include <filesystem>
#include <vector>

namespace sim {

struct ShotOptions {
    std::filesystem::path file;          // PNG; folders on the way are made
    Value boot;                          // the table of `boot`
    std::vector<std::string> statements; // what happens before, as scripts say it; `phone` is the device
    double wait = 0;                     // seconds, after all else
};

// Throws BootError, CallError, or std::runtime_error when the file cannot be written.
void takeShot(const DeviceSetup &setup, const ShotOptions &options);

// "com.apple.mobilemail=3" as the statement that gives this badge. Throws CallError.
std::string badgeStatement(const std::string &text);
// "tint=cyan" as a setting: true, false, a number or else a text. Throws CallError.
std::pair<std::string, Value> settingFrom(const std::string &text);

} // namespace sim

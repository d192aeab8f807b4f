// What a device is booted with: the table that a script gives to `boot`, checked.
#pragma once

#include "OptionReader.hpp"
#include "Runtime/Values/Boot.hpp"
#include "Supervisor/Profiles/Profiles.hpp"

#include <optional>
#include <string>
#include <vector>

namespace sim {

struct BootOptions : SharedOptions {
    const Profile *profile = nullptr;
    std::string version; // "8.1"
    std::string language;
    double wallClock =
        0; // seconds from 1970-01-01 00:00:00 UTC to the moment at which the device's clock is zero
    std::optional<Value> settings;           // an object; absent: no file is written
    std::optional<std::string> settingsText; // instead of `settings`
    std::vector<std::string> missingFiles;   // paths on the device
    bool otherExtension = false;             // its package list is there
    std::string root;                        // empty: a temporary folder
    std::vector<std::string> extensions;     // others than the package's: paths on this machine
    std::vector<std::string> remarks;        // what is odd about them; become warning events
};

// Throws BootError with a text for the script's author. `stockApplications` is the text of the JSON file of
// those that a device has when the table names none, [{"id", "name": {language: text}, "folder", "dock",
// "status_bar"}]; a name that an application lacks is taken from it as well. Throws ValueError when that text
// is broken.
BootOptions readBootOptions(const Value &table, std::string_view stockApplications);

// "2015-03-01 10:20:30" as seconds since 1970; nothing for a moment that does not exist.
std::optional<double> parseClock(const std::string &text);

} // namespace sim

// What a device is booted with: the table that a script gives to `boot`, checked.
#pragma once

#include "OptionReader.hpp"
#include "Supervisor/Profiles/Profiles.hpp"

#include <optional>
#include <string>
#include <vector>

namespace sim {

struct Application {
    std::string identifier;
    std::string name;
    int64_t badge = 0;
    bool running = false;
    std::string folder; // empty: on the home screen itself
    bool icon = true;   // false: the placeholder icon
    bool snapshot = true;
    bool dock = false;
};

struct ColorBadges {
    bool enabled = true;
    bool borders = true;
};

// Writes below a path that do not succeed, in each process of the device.
struct FailingWrites {
    std::string path;             // on the device; the beginning of the names meant
    int64_t error = 0;            // of errno
    std::string call;             // "open", "rename", or empty for each
    int64_t first = 1;            // the first of these calls to fail
    std::optional<int64_t> times; // how many in a row; absent: all
};

struct BootOptions {
    const Profile *profile = nullptr;
    std::string version; // "8.1"
    std::string language;
    double wallClock =
        0; // seconds from 1970-01-01 00:00:00 UTC to the moment at which the device's clock is zero
    std::optional<Value> settings;           // an object; absent: no file is written
    std::optional<std::string> settingsText; // instead of `settings`
    std::vector<Application> applications;
    bool extension = true;
    std::vector<std::string> hiddenClasses;
    std::vector<std::string> hiddenMethods;   // "Class selector", "Class +selector"
    std::vector<std::string> silencedMethods; // the same
    std::vector<std::string> missingFiles;    // paths on the device
    std::vector<FailingWrites> writeFailures;
    std::optional<ColorBadges> colorBadges;
    bool passcode = false;
    bool passcodeLocked = false;
    bool otherExtension = false; // its package list is there
    std::string root;            // empty: a temporary folder
};

// Throws BootError with a text for the script's author. `stockApplications` is the text of the JSON file of
// those that a device has when the table names none, [{"id", "name": {language: text}, "folder", "dock"}]; a
// name that an application lacks is taken from it as well. Throws ValueError when that text is broken.
BootOptions readBootOptions(const Value &table, std::string_view stockApplications);

// "2015-03-01 10:20:30" as seconds since 1970; nothing for a moment that does not exist.
std::optional<double> parseClock(const std::string &text);

} // namespace sim

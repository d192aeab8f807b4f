// What a device is booted with, as far as a simulated process is told of it. The fields stand here with their
// names: by them a script's table is read, and the boot message written and read.
#pragma once

#include "Aids.hpp"
#include "Nanoseconds.hpp"
#include "Value.hpp"

#include <optional>
#include <string>
#include <vector>

namespace sim {

struct ApplicationSpec {
    std::string identifier;
    std::string name;
    int64_t badge = 0;
    bool running = false;
    std::string folder; // empty: on the home screen itself
    bool icon = true;   // false: the placeholder icon
    bool snapshot = true;
    bool dock = false;     // of the stock applications only
    bool statusBar = true; // false: hides it while it is in front

    bool operator==(const ApplicationSpec &) const = default;
};

// The other extension with a colour for each badge.
struct ColorBadgeOptions {
    bool enabled = true;
    bool borders = true;

    bool operator==(const ColorBadgeOptions &) const = default;
};

// Writes below a path that do not succeed, in each process of the device.
struct FailingWrites {
    std::string path;             // on the device; the beginning of the names meant
    std::string error = "ENOSPC"; // a name that errorNumber() knows
    std::string call;             // "open", "rename", or empty for each
    int64_t first = 1;            // the first of these calls to fail
    std::optional<int64_t> times; // how many in a row; absent: all

    bool operator==(const FailingWrites &) const = default;
};

// Of the errors that a write can fail with here, by the name in <errno.h>.
std::optional<int> errorNumber(const std::string &name);

// What scripts and processes know alike.
struct SharedOptions {
    std::vector<ApplicationSpec> applications; // in home-screen order; running ones most recent first
    bool extension = true;
    std::vector<std::string> hiddenClasses;
    std::vector<std::string> hiddenMethods;   // "Class selector", "Class +selector"
    std::vector<std::string> silencedMethods; // the same
    std::vector<FailingWrites> writeFailures;
    std::optional<ColorBadgeOptions> colorBadges; // absent: not installed
    bool passcode = false;                        // the device has one
    bool passcodeLocked = false;
    std::optional<bool> interfaceTurns; // absent: as the device's and the version's does
    int64_t orientation = 1;            // how the device is held, 1 to 4
    Aids aids;

    bool operator==(const SharedOptions &) const = default;
};

struct DeviceProfile {
    std::string name;
    std::string machine;          // "hw.machine"
    double width = 0, height = 0; // points, portrait
    double scale = 1;
    bool pad = false, touchSensor = false, reachability = false;
    std::string version; // "8.1"
    std::string language;

    bool operator==(const DeviceProfile &) const = default;
};

struct BootMessage : SharedOptions {
    DeviceProfile device;
    Nanos now = 0;           // where the clock starts
    double wallClock = 0;    // seconds from 1970-01-01 00:00:00 UTC to the moment at which the clock is zero
    std::string root;        // the folder of the device's file system
    std::string platform;    // the folder of the platform's pictures
    std::string countedFile; // on the device; whose reads are counted
    std::optional<std::string> entry; // the page that Settings opens

    bool operator==(const BootMessage &) const = default;
};

// Each calls field(name, member) for the fields that go by the same name everywhere.
template <typename Field>
void eachField(ApplicationSpec &application, Field &&field) {
    field("id", application.identifier);
    field("name", application.name);
    field("badge", application.badge);
    field("running", application.running);
    field("folder", application.folder);
    field("icon", application.icon);
    field("snapshot", application.snapshot);
    field("status_bar", application.statusBar);
}

template <typename Field>
void eachField(ColorBadgeOptions &badges, Field &&field) {
    field("enabled", badges.enabled);
    field("borders", badges.borders);
}

template <typename Field>
void eachField(FailingWrites &failure, Field &&field) {
    field("path", failure.path);
    field("error", failure.error);
    field("call", failure.call);
    field("first", failure.first);
    field("times", failure.times);
}

template <typename Field>
void eachField(SharedOptions &options, Field &&field) {
    field("extension", options.extension);
    field("hide_classes", options.hiddenClasses);
    field("hide_methods", options.hiddenMethods);
    field("nil_methods", options.silencedMethods);
    field("passcode", options.passcode);
    field("passcode_locked", options.passcodeLocked);
    field("interface_turns", options.interfaceTurns);
    eachField(options.aids, field);
}

Value toValue(BootMessage message);
// Throws ValueError for a message that toValue() did not make.
BootMessage readBootMessage(const Value &message);

} // namespace sim

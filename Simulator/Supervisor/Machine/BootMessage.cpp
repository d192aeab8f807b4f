#include "BootMessage.hpp"

namespace sim {

namespace {

Value deviceProfile(const BootOptions &options) {
    const Profile &profile = *options.profile;
    bool fromEight = options.version >= "8";
    return Object{{"name", profile.name},
                  {"machine", profile.machine},
                  {"width", profile.width},
                  {"height", profile.height},
                  {"scale", profile.scale},
                  {"pad", profile.pad()},
                  {"touch_sensor", profile.touchSensor},
                  {"reachability", profile.reachability && fromEight},
                  {"version", options.version},
                  {"language", options.language}};
}

Value strings(const std::vector<std::string> &list) { return Array(list.begin(), list.end()); }

Value applications(const BootOptions &options) {
    Array result;
    for (const auto &application : options.applications)
        result.push_back(Object{{"id", application.identifier},
                                {"name", application.name},
                                {"badge", application.badge},
                                {"running", application.running},
                                {"folder", application.folder},
                                {"icon", application.icon},
                                {"snapshot", application.snapshot},
                                {"dock", application.dock}});
    return result;
}

Value writeFailures(const BootOptions &options) {
    Array result;
    for (const auto &failure : options.writeFailures) {
        Object entry{{"path", failure.path}, {"error", failure.error}, {"first", failure.first}};
        if (!failure.call.empty()) entry.emplace("call", failure.call);
        if (failure.times) entry.emplace("times", *failure.times);
        result.push_back(std::move(entry));
    }
    return result;
}

} // namespace

Object bootMessage(const DeviceSetup &setup, const BootOptions &options, const std::filesystem::path &root,
                   int64_t now) {
    Object message{{"device", deviceProfile(options)},
                   {"now", now},
                   {"wall_clock", options.wallClock},
                   {"root", root.string()},
                   {"platform", setup.installation.platform.string()},
                   {"load_extensions", options.extension},
                   {"hide_classes", strings(options.hiddenClasses)},
                   {"hide_methods", strings(options.hiddenMethods)},
                   {"nil_methods", strings(options.silencedMethods)},
                   {"fail_writes", writeFailures(options)},
                   {"applications", applications(options)},
                   {"passcode", options.passcode},
                   {"passcode_locked", options.passcodeLocked},
                   {"count_reads_of", setup.package.settingsFile}};
    if (options.colorBadges)
        message.emplace("color_badges", Object{{"enabled", options.colorBadges->enabled},
                                               {"borders", options.colorBadges->borders}});
    return message;
}

} // namespace sim

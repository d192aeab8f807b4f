#include "Messages.hpp"

#include "Runtime/Values/Json.hpp"
#include "Runtime/Values/PropertyList.hpp"
#include "Supervisor/Text/Readable.hpp"

#include <set>

namespace sim {

namespace {

// Data and dates have no JSON form: as a person would read them.
Value forPage(const Value &value) {
    if (value.isData() || value.isDate()) return readable(value);
    if (value.isArray()) {
        Array items;
        for (const auto &item : value.array()) items.push_back(forPage(item));
        return items;
    }
    if (!value.isObject()) return value;
    Object members;
    for (const auto &[name, item] : value.object()) members.emplace(name, forPage(item));
    return members;
}

Array languages(const DeviceSetup &setup) {
    std::set<std::string> found;
    Value stock = parseJson(readFile(setup.installation.platform / "applications.json"));
    for (const auto &application : stock.array())
        for (const auto &[language, name] : application["name"].object()) found.insert(language);
    return {found.begin(), found.end()};
}

Array applications(const BootOptions &options) {
    Array result;
    for (const auto &application : options.applications)
        result.push_back(Object{{"id", application.identifier}, {"name", application.name}});
    return result;
}

} // namespace

Value helloMessage(const DeviceSetup &setup, const std::string &greeting) {
    Array devices;
    for (const auto &profile : profiles())
        devices.push_back(Object{{"name", profile.name},
                                 {"versions", Array(profile.versions.begin(), profile.versions.end())}});
    return Object{
        {"kind", "hello"}, {"devices", devices}, {"languages", languages(setup)}, {"greeting", greeting}};
}

Value deviceMessage(LiveDevice &device) {
    Object message{{"kind", "device"}, {"boots", device.boots()}, {"running", device.device() != nullptr}};
    if (!device.device()) {
        message.emplace("trouble", device.trouble());
        return message;
    }
    const BootOptions &options = device.options();
    const Profile &profile = *options.profile;
    message.insert({{"name", profile.name},
                    {"ios", options.version},
                    {"language", options.language},
                    {"width", profile.width},
                    {"height", profile.height},
                    {"scale", profile.scale},
                    {"pad", profile.pad()},
                    {"sensor", profile.touchSensor},
                    {"reachability", profile.reachability && options.version >= "8"},
                    {"turned", device.turned()},
                    {"settings", device.showsSettings()},
                    {"interface", device.screen()->interfaceOrientation()},
                    {"generation", device.device()->generation()},
                    {"applications", applications(options)}});
    return message;
}

Value eventsMessage(const EventList &events, size_t first) {
    return Object{{"kind", "events"}, {"first", first}, {"events", forPage(events.since(first))}};
}

Value settingsMessage(const SettingsFile &settings) {
    std::string problem;
    auto content = settings.read(&problem);
    Object message{{"kind", "settings"}, {"present", content.has_value() || !problem.empty()}};
    if (!problem.empty()) message.emplace("problem", problem);
    if (content) {
        message.emplace("values", forPage(*content));
        message.emplace("text", toXmlPropertyList(*content));
    }
    return message;
}

Value viewsMessage(SimulatedScreen &screen) {
    return Object{{"kind", "views"},
                  {"windows", screen.ask("windows", {{"window", screen.reportedWindow()}})}};
}

Value stateMessage(SimulatedDevice &device) {
    Value message = device.ask("state");
    message.set("kind", "state");
    return message;
}

Value countersMessage(SimulatedScreen &screen) {
    return Object{{"kind", "counters"}, {"counters", screen.ask("counters")}};
}

Value scriptMessage(const Journal &journal, size_t from) {
    const auto &lines = journal.lines();
    from = std::min(from, lines.size());
    Array rest(lines.begin() + static_cast<std::ptrdiff_t>(from), lines.end());
    return Object{{"kind", "script"}, {"from", from}, {"lines", rest}};
}

Value noticeMessage(const std::string &text) { return Object{{"kind", "notice"}, {"text", text}}; }

} // namespace sim

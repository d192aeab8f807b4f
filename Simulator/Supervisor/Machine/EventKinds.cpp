#include "EventKinds.hpp"

#include <algorithm>
#include <cstring>
#include <stdexcept>

namespace sim {

namespace {

std::vector<EventKind> makeKinds() {
    return {
        {"log", "A line of the system log.", {{"text", "the whole line"}}},
        {"launch", "An application was brought to the front.", {{"id", "its identifier"}}},
        {"quit", "An application ended.", {{"id", "its identifier"}, {"how", "\"switcher\" or \"signal\""}}},
        {"signal", "A signal was sent to a process.", {{"pid", "the process"}, {"number", "the signal"}}},
        {"badge_set", "A badge was set.", {{"id", "the application"}, {"value", "0 when cleared"}}},
        {"notifications_cancelled", "All local notifications were cancelled.", {}},
        {"sound", "A system sound was played.", {{"id", "its number"}}},
        {"passcode_prompt",
         "The lock screen was asked for the passcode, by a finger that slides or by a program; "
         "without a passcode the screen stays as it is.",
         {}},
        {"respring", "The home screen was started anew.", {}},
        {"listener", "An Activator listener was registered.", {{"name", "its name"}}},
        {"activator_settings",
         "The settings of an Activator listener were asked for.",
         {{"listener", "its name"}}},
        {"statusbar",
         "A property of the status-bar item was set.",
         {{"property", "its name"}, {"value", "what it was set to"}}},
        {"biometric",
         "The fingerprint monitor was spoken to; what `finger` sends is not listed.",
         {{"what", "\"observe\", \"unobserve\", \"matching_on\", \"matching_off\" or \"start\""}}},
        {"original",
         "The previous implementation of a hooked method ran.",
         {{"class", "the class"}, {"selector", "with its colons"}}},
        {"unrecognized",
         "An object was sent a message that it does not know; the process ends.",
         {{"class", "of the object"}, {"selector", "with its colons"}}},
        {"missing_file", "A picture that does not exist was asked for.", {{"path", "on the device"}}},
        {"tweet", "The sheet for a tweet was shown.", {{"text", "what stands in it"}}},
        {"spoken",
         "VoiceOver said something without being asked.",
         {{"text", "what it said"},
          {"what",
           "\"announcement\", \"screen\" after a change of all that is shown, \"layout\" of a part"}}},
        {"crash",
         "The process crashed and was started again.",
         {{"signal", "a name: \"SIGSEGV\""}, {"stack", "one text with a line a frame"}}},
        {"warning", "The simulator could not do quite what it was asked.", {{"text", "what and why"}}},
    };
}

const EventKind *findKind(const std::string &name) {
    auto found = std::ranges::find_if(eventKinds(), [&](const auto &kind) { return name == kind.name; });
    return found == eventKinds().end() ? nullptr : &*found;
}

bool has(const std::vector<Described> &fields, const std::string &name) {
    return std::ranges::any_of(fields, [&](const auto &field) { return name == field.name; });
}

} // namespace

std::span<const EventKind> eventKinds() {
    static const std::vector<EventKind> kinds = makeKinds();
    return kinds;
}

const std::vector<std::string> &eventKindNames() {
    static const std::vector<std::string> names = [] {
        std::vector<std::string> result;
        for (const auto &kind : eventKinds()) result.emplace_back(kind.name);
        return result;
    }();
    return names;
}

std::vector<Described> allEventFields() {
    std::vector<Described> fields = {{"t", "when, in seconds since `boot` returned"},
                                     {"kind", "one of the kinds"}};
    for (const auto &kind : eventKinds())
        for (const auto &field : kind.fields)
            if (!has(fields, field.name)) fields.push_back(field);
    return fields;
}

void checkEvent(const Value &event) {
    const EventKind *kind = findKind(event["kind"].string());
    if (!kind) throw std::logic_error("no row of the table of events is '" + event["kind"].string() + "'");
    for (const auto &[name, value] : event.object())
        if (name != "t" && name != "kind" && !has(kind->fields, name))
            throw std::logic_error("the table of events has no field '" + name + "' of '" + kind->name + "'");
}

} // namespace sim

// What the page is told, beside frames: one JSON object a message, with its "kind".
#pragma once

#include "LiveDevice.hpp"

namespace sim {

// What there is to choose from: devices with their versions, and languages; `greeting` is a line for a person
// who has come without a wish.
Value helloMessage(const DeviceSetup &setup, const std::string &greeting);
// The device that was booted, its applications, and its boot's count; or why there is none.
Value deviceMessage(LiveDevice &device);
// {"events": those from `first` on, "first"}
Value eventsMessage(const EventList &events, size_t first);
// The settings file: "present", "problem" (null without one), "values", and its "text" as XML.
Value settingsMessage(const SettingsFile &settings);
// {"windows": the views of the overlay, or of Settings, as {"matches", "views"}}
Value viewsMessage(SimulatedScreen &screen);
// What decides whether a call has an effect now: {"badges": numbers by identifier, "display", "locked",
// "reached", "matching"}
Value stateMessage(SimulatedDevice &device);
Value countersMessage(SimulatedScreen &screen);
// {"from": index of the first line, "lines"}
Value scriptMessage(const Journal &journal, size_t from);
Value noticeMessage(const std::string &text);

} // namespace sim

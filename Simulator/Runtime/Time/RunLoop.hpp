// The mode that the main run loop is in, which decides which of the platform's timers may fire. What the
// system itself schedules on the clock (recognisers, animations, the display) goes on in every mode.
#pragma once

#include "Clock.hpp"

#include <string_view>

namespace sim {

// A set of modes.
using RunLoopModes = unsigned;
constexpr RunLoopModes kDefaultMode = 1, kTrackingMode = 2, kCommonModes = kDefaultMode | kTrackingMode;

// By the name that the platform gives it; 0 for one that the main run loop never enters.
RunLoopModes runLoopModes(std::string_view name);

// The tracking mode while a scroll view follows a finger, else the default one. What became due in the other
// mode meanwhile runs at once, in the order in which it was due.
void setRunLoopMode(RunLoopModes mode);
RunLoopModes runLoopMode();

// Runs `task` once among the timers: at `due`, or later, as soon as the run loop is in one of these modes.
// Never 0.
Clock::TaskId scheduleInModes(Nanos due, RunLoopModes modes, Clock::Task task);
// Unknown and finished tasks are ignored.
void cancelInModes(Clock::TaskId task);

} // namespace sim

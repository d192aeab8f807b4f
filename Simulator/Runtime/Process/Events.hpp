// What happened, in order: the list that scripts read, and the only channel out of a simulated process.
#pragma once

#include "Runtime/Values/Value.hpp"

#include <functional>

namespace sim {

// Records an event of `kind` at the present virtual time. `fields` is an object; "t" (seconds, see
// setEventEpoch) and "kind" are added to it.
void recordEvent(const char *kind, Value fields = Object{});

// A remark about the simulation itself, as an event of kind "warning".
void recordWarning(const std::string &text);

// The virtual time that counts as t = 0.
void setEventEpoch(int64_t nanoseconds);

// Takes the events recorded since the last call.
Array takeEvents();

// Called for each event right after it is recorded; for the crash handler and the tests.
void onEvent(std::function<void(const Value &)> listener);

} // namespace sim

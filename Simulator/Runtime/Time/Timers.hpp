// The platform's timers and delayed performs, on the virtual clock.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace sim {

// Puts NSTimer, performSelector:withObject:afterDelay: and its cancellation on Clock::shared(), and an
// autorelease pool around everything the clock runs.
void installTimers();

// Timers that are scheduled now; delayed performs do not count.
size_t scheduledTimers();

struct TimerDescription {
    std::string target; // its class
    std::string selector;
    double interval = 0; // seconds; 0: fires once
    int64_t due = 0;     // virtual time, nanoseconds
};
// Those timers, the next one first.
std::vector<TimerDescription> describeTimers();

// What NSDate says when the clock stands at zero, in seconds since 1970-01-01 00:00:00 UTC.
void setWallClock(double secondsSince1970);

} // namespace sim

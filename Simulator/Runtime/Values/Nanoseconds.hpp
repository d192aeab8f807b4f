// Virtual time is counted in whole nanoseconds; scripts and the platform tell it in seconds.
#pragma once

#include <cmath>
#include <cstdint>

namespace sim {

// Nanoseconds since the device's first boot.
using Nanos = int64_t;

constexpr Nanos kSecond = 1'000'000'000;

// Rounds to the nearest nanosecond.
inline Nanos fromSeconds(double seconds) { return std::llround(seconds * kSecond); }
inline double toSeconds(Nanos time) { return static_cast<double>(time) / kSecond; }

} // namespace sim

// Scripts tell time in seconds, the clock in whole nanoseconds.
#pragma once

#include <cmath>
#include <cstdint>

namespace sim {

inline int64_t toNanoseconds(double seconds) { return std::llround(seconds * 1e9); }
inline double inSeconds(int64_t nanoseconds) { return static_cast<double>(nanoseconds) / 1e9; }

} // namespace sim

#include "LiveClock.hpp"

#include "Runtime/Values/Nanoseconds.hpp"

#include <algorithm>
#include <cmath>

namespace sim {

namespace {

constexpr int64_t kFramesPerSecond = 60;
constexpr double kMostAtOnce = 3; // frames; more would look like a jump

int64_t frameTime(int64_t frame) { return frame * kSecond / kFramesPerSecond; }

} // namespace

void LiveClock::setSpeed(double speed) {
    speed_ = std::isfinite(speed) ? std::clamp(speed, 0.0, 1.0) : 1;
    owed_ = 0;
}

int64_t LiveClock::pass(double seconds) {
    owed_ = std::min(owed_ + seconds * speed_ * kFramesPerSecond, kMostAtOnce);
    // A tick that comes a little early is still that frame's.
    constexpr double kEarly = 0.1;
    auto due = static_cast<int64_t>(std::floor(owed_ + (runs() ? kEarly * speed_ : 0)));
    owed_ -= static_cast<double>(due);
    return due;
}

int64_t frameAfter(int64_t now, int64_t frames) {
    int64_t frame = now * kFramesPerSecond / kSecond;
    while (frameTime(frame) <= now) ++frame;
    return frameTime(frame + frames - 1);
}

} // namespace sim

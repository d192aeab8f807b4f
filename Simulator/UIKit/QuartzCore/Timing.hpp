// How far an animation has come at a moment.
#pragma once

#include "Runtime/Time/Clock.hpp"

#include <optional>

namespace sim {

// A cubic from (0, 0) to (1, 1) with two control points: x is time, y is progress.
struct TimingCurve {
    double x1 = 0, y1 = 0, x2 = 1, y2 = 1;
    bool operator==(const TimingCurve &) const = default;

    static constexpr TimingCurve linear() { return {0, 0, 1, 1}; }
    static constexpr TimingCurve easeIn() { return {0.42, 0, 1, 1}; }
    static constexpr TimingCurve easeOut() { return {0, 0, 0.58, 1}; }
    static constexpr TimingCurve easeInOut() { return {0.42, 0, 0.58, 1}; }
    // The progress at `time`, both from 0 to 1.
    double at(double time) const;
};

enum class FillMode { removed, forwards, backwards, both };

struct Timing {
    Nanos begin = 0;    // after any delay
    Nanos duration = 0; // of one run in one direction
    double repeatCount = 1;
    bool autoreverses = false;
    FillMode fill = FillMode::removed;
    TimingCurve curve = TimingCurve::linear();

    bool endless() const;
    // The moment after the last run; nothing for an endless one.
    std::optional<Nanos> end() const;
    // The progress at `now`; nothing when the animation has no effect then.
    std::optional<double> progress(Nanos now) const;
};

} // namespace sim

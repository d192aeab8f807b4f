// How fast a finger moves, from its samples.
#pragma once

#include "Runtime/Time/Clock.hpp"

#include <vector>

namespace sim {

class VelocityTracker {
public:
    struct Vector {
        double x = 0, y = 0;
    };

    // Forgets what was and starts at `place`.
    void start(Nanos time, Vector place);
    // `time` does not run backwards.
    void add(Nanos time, Vector place);
    // Units a second over the last moments before `now`; nothing once the finger has lain still for as long.
    Vector at(Nanos now) const;

private:
    struct Sample {
        Nanos time;
        Vector place;
    };
    Vector placeAt(Nanos time) const;

    std::vector<Sample> samples_;
};

} // namespace sim

// How many frames of a device's time are due as real time goes by.
#pragma once

#include <cstdint>

namespace sim {

class LiveClock {
public:
    // Of real time; 0 stops the clock. Below 0 and above 1: the nearest of those.
    void setSpeed(double speed);
    double speed() const { return speed_; }
    bool runs() const { return speed_ > 0; }

    // Lets real time pass; returns the frames that are due now. A machine that cannot keep up loses what it
    // is late by, so that a pause is not followed by a rush.
    int64_t pass(double seconds);

private:
    double speed_ = 1;
    double owed_ = 0; // parts of a frame
};

// The time of the n-th frame after `now`, in nanoseconds; frames stand at k/60 s.
int64_t frameAfter(int64_t now, int64_t frames);

} // namespace sim

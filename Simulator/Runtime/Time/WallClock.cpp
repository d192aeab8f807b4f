// The machine's clock as the simulated process sees it. Foundation's dates come from gettimeofday alone.
#include "Clock.hpp"
#include "Timers.hpp"

#include <sys/time.h>

namespace {
sim::Nanos epoch = 0;
}

namespace sim {
void setWallClock(double secondsSince1970) { epoch = fromSeconds(secondsSince1970); }
} // namespace sim

extern "C" __attribute__((visibility("default"))) int gettimeofday(struct timeval *time, void *) noexcept {
    sim::Nanos now = epoch + sim::Clock::shared().now();
    time->tv_sec = now / sim::kSecond;
    time->tv_usec = now % sim::kSecond / 1000;
    return 0;
}

#include "LongWait.hpp"

#include "Interrupt.hpp"
#include "Runtime/Values/Nanoseconds.hpp"
#include "SimulatedProcess.hpp"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <unistd.h>

namespace sim {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

// A line on the terminal that is written over, and gone at the end.
class Progress {
public:
    ~Progress() {
        if (shown_) fprintf(stderr, "\r\033[K");
    }
    void tell(int64_t passed, int64_t whole) {
        if (!terminal_ || Clock::now() < due_) return;
        fprintf(stderr, "\r\033[Kwaiting: %.0f of %.0f s (Ctrl-C ends it)", toSeconds(passed),
                toSeconds(whole));
        fflush(stderr);
        shown_ = true;
        due_ = Clock::now() + milliseconds(200);
    }

private:
    bool terminal_ = isatty(STDERR_FILENO), shown_ = false;
    Clock::time_point due_ = Clock::now() + milliseconds(1000);
};

} // namespace

// In steps, which change nothing of what happens: each as long as takes this machine a moment.
void waitLong(SimulatedScreen &screen, int64_t duration) {
    const int64_t start = screen.now(), end = start + duration;
    int64_t step = fromSeconds(60);
    Progress progress;
    do {
        if (interrupted()) throw RequestError("interrupted");
        auto before = Clock::now();
        screen.advance(std::min(step, end - screen.now()));
        auto taken = Clock::now() - before;
        if (taken < milliseconds(50)) step *= 2;
        if (taken > milliseconds(500)) step = std::max<int64_t>(step / 2, fromSeconds(1));
        progress.tell(screen.now() - start, duration);
    } while (screen.now() < end);
}

} // namespace sim

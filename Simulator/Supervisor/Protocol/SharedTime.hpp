// The virtual time of a simulated process in memory that it shares with the supervisor, so that the time of
// its death is known.
#pragma once

#include <atomic>
#include <cstdint>

namespace sim {

class SharedTime {
public:
    // A descriptor of new shared memory, standing at zero. Throws std::system_error.
    static int create();
    // Does not take ownership of the descriptor. Throws std::system_error.
    explicit SharedTime(int descriptor);
    ~SharedTime();
    SharedTime(const SharedTime &) = delete;
    SharedTime &operator=(const SharedTime &) = delete;

    void set(int64_t nanoseconds) { *cell_ = nanoseconds; }
    int64_t get() const { return *cell_; }

private:
    std::atomic<int64_t> *cell_;
};

} // namespace sim

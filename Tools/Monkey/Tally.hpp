// What a run has done so far.
#pragma once

#include "Runtime/Values/Value.hpp"

#include <cstdint>
#include <map>
#include <string>

namespace sim {

struct Tally {
    int64_t sessions = 0, events = 0, refused = 0;
    int64_t open = 0;                    // events that met an open panel
    int64_t locked = 0;                  // … a device locked by its passcode
    int64_t virtualTime = 0;             // nanoseconds
    std::map<std::string, int64_t> acts; // how often each was done

    void add(const Tally &other);

    Value value() const;
    // Throws ValueError when `value` is no tally.
    static Tally of(const Value &value);
    // For people, some lines.
    std::string text() const;
};

} // namespace sim

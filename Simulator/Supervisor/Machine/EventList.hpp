// The log of a process's events; outlives its restarts.
#pragma once

#include "Runtime/Values/Value.hpp"

#include <string>
#include <vector>

namespace sim {

class EventList {
public:
    // Throws std::logic_error for an event that the table of kinds does not know.
    void add(Value event);
    // An event of the supervisor's own making. `seconds` is the virtual time since the device was booted.
    void add(double seconds, const char *kind, Object fields);

    size_t size() const { return events_.size(); }
    // All, or those of one kind.
    Array all() const { return events_; }
    Array ofKind(const std::string &kind) const;
    // Those from that place in the list on.
    Array since(size_t first) const;
    // The lines of the system log.
    Array log() const;
    // The last `count` of them but for hooked calls, a line each, for people.
    std::string tail(size_t count) const;

private:
    Array events_;
};

} // namespace sim

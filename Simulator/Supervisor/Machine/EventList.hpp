// The log of a process's events; outlives its restarts.
#pragma once

#include "Runtime/Values/Value.hpp"

#include <string>
#include <vector>

namespace sim {

class EventList {
public:
    void add(Value event) { events_.push_back(std::move(event)); }
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
    // The last `count` of them, a line each, for people.
    std::string tail(size_t count) const;

private:
    Array events_;
};

// The kinds of events and the fields that events may have, for telling scripts what they mistyped.
const std::vector<std::string> &eventKinds();
const std::vector<std::string> &eventFields();

} // namespace sim

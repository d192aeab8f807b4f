// The log of a process's events; outlives its restarts. The last ones are in memory, those before them in a
// file, so that it may grow for as long as there is room on disk.
#pragma once

#include "EventFile.hpp"
#include "EventKinds.hpp"
#include "Runtime/Values/Value.hpp"

#include <string>
#include <vector>

namespace sim {

class EventList {
public:
    using Visitor = EventFile::Visitor;
    // What each event has to pass; the function throws for one that it refuses. Null: every event is taken.
    using Check = void (*)(const Value &event);

    explicit EventList(Check check = checkEvent) : check_(check) {}

    // Throws what the check throws: std::logic_error for an event that the table of kinds does not know.
    void add(Value event);
    // An event of the supervisor's own making. `seconds` is the virtual time since the device was booted.
    void add(double seconds, const char *kind, Object fields);

    size_t size() const { return old_.size() + recent_.size(); }
    // Visits the events in order; of `kind` only, unless that is empty. Like all that follow it throws
    // std::runtime_error when the old ones cannot be read.
    void visit(const std::string &kind, const Visitor &visitor) const { visit(0, kind, visitor); }
    // All, or those of one kind.
    Array all() const { return since(0); }
    Array ofKind(const std::string &kind) const;
    // Those from that place in the list on.
    Array since(size_t first) const;
    // The lines of the system log.
    Array log() const;
    // The last `count` of them but for hooked calls, a line each, for people.
    std::string tail(size_t count) const;

private:
    void visit(size_t first, const std::string &kind, const Visitor &visitor) const;

    Check check_;
    EventFile old_;
    Array recent_;
    bool full_ = false; // the file takes no more
};

} // namespace sim

#include "Events.hpp"

#include "Runtime/Time/Clock.hpp"

#include <utility>

namespace sim {

namespace {

struct EventList {
    Array pending;
    Nanos epoch = 0;
    std::function<void(const Value &)> listener;
};

EventList &list() {
    static EventList events;
    return events;
}

} // namespace

void recordEvent(const char *kind, Value fields) {
    fields.set("t", toSeconds(Clock::shared().now() - list().epoch));
    fields.set("kind", kind);
    list().pending.push_back(std::move(fields));
    if (list().listener) list().listener(list().pending.back());
}

void recordWarning(const std::string &text) { recordEvent("warning", Object{{"text", text}}); }

void setEventEpoch(int64_t nanoseconds) { list().epoch = nanoseconds; }

Array takeEvents() { return std::exchange(list().pending, {}); }

void onEvent(std::function<void(const Value &)> listener) { list().listener = std::move(listener); }

} // namespace sim

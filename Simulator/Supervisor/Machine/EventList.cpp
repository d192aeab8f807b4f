#include "EventList.hpp"

#include "EventKinds.hpp"
#include "Supervisor/Text/Readable.hpp"

#include <algorithm>
#include <cstdio>

namespace sim {

void EventList::add(Value event) {
    checkEvent(event);
    events_.push_back(std::move(event));
}

void EventList::add(double seconds, const char *kind, Object fields) {
    fields.insert_or_assign("t", seconds);
    fields.insert_or_assign("kind", kind);
    add(Value(std::move(fields)));
}

Array EventList::ofKind(const std::string &kind) const {
    Array result;
    for (const auto &event : events_)
        if (event["kind"].string() == kind) result.push_back(event);
    return result;
}

Array EventList::since(size_t first) const {
    first = std::min(first, events_.size());
    return {events_.begin() + static_cast<Array::difference_type>(first), events_.end()};
}

Array EventList::log() const {
    Array result;
    for (const auto &event : events_)
        if (event["kind"].string() == "log") result.push_back(event["text"]);
    return result;
}

std::string EventList::tail(size_t count) const {
    std::vector<const Value *> last;
    for (auto event = events_.rbegin(); event != events_.rend() && last.size() < count; ++event)
        if ((*event)["kind"].string() != "original") last.push_back(&*event);
    std::string result;
    for (auto event = last.rbegin(); event != last.rend(); ++event) {
        Object fields = (*event)->object();
        char start[80];
        snprintf(start, sizeof start, "%12.6f  %s", fields["t"].number(), fields["kind"].string().c_str());
        fields.erase("t");
        fields.erase("kind");
        result += start;
        for (const auto &[name, value] : fields) result += "  " + name + " = " + readable(value);
        result += '\n';
    }
    return result;
}

} // namespace sim

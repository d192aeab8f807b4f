#include "EventList.hpp"

#include "Supervisor/Text/Readable.hpp"

#include <algorithm>
#include <cstdio>
#include <deque>
#include <span>

namespace sim {

namespace {

// How many go to the file at a time; in memory are up to twice as many.
constexpr size_t kBlock = 1024;

std::string line(const Value &event) {
    Object fields = event.object();
    char start[80];
    snprintf(start, sizeof start, "%12.6f  %s", fields["t"].number(), fields["kind"].string().c_str());
    fields.erase("t");
    fields.erase("kind");
    std::string result = start;
    for (const auto &[name, value] : fields) result += "  " + name + " = " + readable(value);
    return result + '\n';
}

} // namespace

void EventList::add(Value event) {
    if (check_) check_(event);
    recent_.push_back(std::move(event));
    if (full_ || recent_.size() < 2 * kBlock) return;
    full_ = !old_.append(std::span(recent_).first(kBlock));
    if (!full_) recent_.erase(recent_.begin(), recent_.begin() + kBlock);
}

void EventList::add(double seconds, const char *kind, Object fields) {
    fields.insert_or_assign("t", seconds);
    fields.insert_or_assign("kind", kind);
    add(Value(std::move(fields)));
}

void EventList::visit(size_t first, const std::string &kind, const Visitor &visitor) const {
    old_.visit(first, kind, visitor);
    for (size_t i = first - std::min(first, old_.size()); i < recent_.size(); ++i)
        if (kind.empty() || recent_[i]["kind"].string() == kind) visitor(recent_[i]);
}

Array EventList::ofKind(const std::string &kind) const {
    Array result;
    visit(kind, [&](const Value &event) { result.push_back(event); });
    return result;
}

Array EventList::since(size_t first) const {
    Array result;
    visit(first, "", [&](const Value &event) { result.push_back(event); });
    return result;
}

Array EventList::log() const {
    Array result;
    visit("log", [&](const Value &event) { result.push_back(event["text"]); });
    return result;
}

std::string EventList::tail(size_t count) const {
    std::deque<std::string> lines;
    for (size_t looked = count, first = 1; first > 0 && lines.size() < count; looked *= 4) {
        first = size() - std::min(looked, size());
        lines.clear();
        visit(first, "", [&](const Value &event) {
            if (event["kind"].string() != "original") lines.push_back(line(event));
            if (lines.size() > count) lines.pop_front();
        });
    }
    std::string result;
    for (const auto &one : lines) result += one;
    return result;
}

} // namespace sim

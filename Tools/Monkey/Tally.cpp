#include "Tally.hpp"

#include <cstdio>

namespace sim {

namespace {

struct Count {
    const char *name;
    int64_t Tally::*member;
};

constexpr Count kCounts[] = {{"sessions", &Tally::sessions}, {"events", &Tally::events},
                             {"refused", &Tally::refused},   {"open", &Tally::open},
                             {"locked", &Tally::locked},     {"virtual_time", &Tally::virtualTime}};

double percentage(int64_t part, int64_t whole) {
    return whole ? 100.0 * static_cast<double>(part) / static_cast<double>(whole) : 0;
}

} // namespace

void Tally::add(const Tally &other) {
    for (const auto &count : kCounts) this->*count.member += other.*count.member;
    for (const auto &[act, times] : other.acts) acts[act] += times;
}

Value Tally::value() const {
    Object result, times;
    for (const auto &count : kCounts) result.emplace(count.name, this->*count.member);
    for (const auto &[act, number] : acts) times.emplace(act, number);
    result.emplace("acts", times);
    return result;
}

Tally Tally::of(const Value &value) {
    Tally tally;
    for (const auto &count : kCounts) tally.*count.member = value[count.name].integer();
    for (const auto &[act, number] : value["acts"].object()) tally.acts[act] = number.integer();
    return tally;
}

std::string Tally::text() const {
    std::string result;
    char line[160];
    for (const auto &[act, times] : acts) {
        snprintf(line, sizeof line, "%10lld  %s\n", static_cast<long long>(times), act.c_str());
        result += line;
    }
    constexpr double kNanosecondsAnHour = 3600e9;
    snprintf(line, sizeof line,
             "%lld events in %lld sessions, %.1f virtual hours\n"
             "%.1f %% refused, %.1f %% with the panel open, %.1f %% locked\n",
             static_cast<long long>(events), static_cast<long long>(sessions),
             static_cast<double>(virtualTime) / kNanosecondsAnHour, percentage(refused, events),
             percentage(open, events), percentage(locked, events));
    return result + line;
}

} // namespace sim

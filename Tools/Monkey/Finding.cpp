#include "Finding.hpp"

#include "Replay.hpp"
#include "Silence.hpp"

namespace sim {

namespace {

// The table without one of its members, or without one member of a member's.
std::vector<Value> withoutOne(const Value &boot, const Value &given) {
    std::vector<Value> result;
    auto without = [](Value table, const std::string &name) {
        table.object().erase(name);
        return table;
    };
    for (const auto &[name, value] : boot.object()) {
        if (given.has(name) || name == "device" || name == "ios") continue;
        result.push_back(without(boot, name));
        if (value.isObject())
            for (const auto &[key, ignored] : value.object()) {
                result.push_back(boot);
                result.back().set(name, without(value, key));
            }
    }
    return result;
}

void shortenBoot(const DeviceSetup &setup, Finding &finding, const Value &given, const std::string &rule,
                 size_t mostReplays) {
    size_t replays = 0;
    bool shorter = true;
    while (shorter) {
        shorter = false;
        for (const Value &candidate : withoutOne(finding.boot, given)) {
            if (++replays > mostReplays) return;
            if (!breaks(setup, candidate, finding.lines, rule)) continue;
            finding.boot = candidate;
            shorter = true;
            break;
        }
    }
}

} // namespace

Finding shortened(const DeviceSetup &setup, const Session &session, const Value &given, size_t mostReplays) {
    Silence silence;
    Finding finding{session.boot, session.lines, session.broken, false};
    std::string rule = ruleOf(session.broken.front());
    auto attempt = [&](const Lines &lines) { return breaks(setup, session.boot, lines, rule); };
    auto needed = attempt(finding.lines);
    finding.repeats = needed.has_value();
    if (!finding.repeats) return finding;
    finding.lines.resize(*needed);
    finding.lines = shrunk(std::move(finding.lines), attempt, mostReplays);
    shortenBoot(setup, finding, given, rule, mostReplays / 4);
    return finding;
}

} // namespace sim

// Only those timers run that should, and what is observed is observed while it is needed.
#include "Names.hpp"
#include "Rules.hpp"

#include <algorithm>
#include <cmath>

namespace sim {

namespace {

struct Kind {
    const char *selector;
    double interval; // seconds
};
// All of the extension's; their target is the application object.
constexpr Kind kPoll{"preferenceChangesByMe", 1.0}, kPulse{"pulse:", 0.07}, kFollower{"alphaStatusBar:", 0.1};
constexpr const char *kTarget = "SpringBoard";
constexpr int64_t kStarting = 550'000'000; // from the line of the log to the timer, at most

// Whether objects of that class do what the extension has them do. Other classes' timers are the system's
// own.
bool isExtensions(const std::string &type) {
    const char *const types[] = {kTarget, "NewUIScrollView", "swipeController", "QLActivatorListener",
                                 "PendixTouchIDController"};
    return std::ranges::find(types, type) != std::end(types);
}

bool isOf(const SeenTimer &timer, const Kind &kind) {
    return timer.target == kTarget && timer.selector == kind.selector &&
           std::abs(timer.interval - kind.interval) < 1e-6;
}

int64_t count(const Observation &seen, const Kind &kind) {
    return std::ranges::count_if(seen.timers, [&](const SeenTimer &timer) { return isOf(timer, kind); });
}

// A finger on a scroll view keeps timers of the default mode from firing: what was due is still there.
bool isHeldBack(const Observation &seen, const Kind &kind, int64_t at) {
    return std::ranges::any_of(seen.timers,
                               [&](const SeenTimer &timer) { return isOf(timer, kind) && timer.due < at; });
}

// Timers of a kind stop themselves at the tick after they are no longer wanted. One that is wanted again
// before that tick runs on beside the new one, so that there may be one more for each start.
void checkKind(const Kind &kind, const Moment &moment, int64_t started, bool wanted, TimerMemory &memory,
               Findings &findings) {
    int64_t running = count(moment.now, kind), added = running - memory.running;
    if (started) {
        memory.pending += started;
        memory.pendingUntil = moment.to + kStarting;
    }
    if (added > memory.pending)
        findings.push_back("there are " + std::to_string(running) + " timers for " + kind.selector + ", " +
                           std::to_string(added - memory.pending) + " more than were started");
    memory.pending = moment.to > memory.pendingUntil
                         ? 0
                         : std::max<int64_t>(0, memory.pending - std::max<int64_t>(0, added));
    if (wanted || started) {
        memory.unwantedSince.reset();
    } else if (!memory.unwantedSince || isHeldBack(moment.now, kind, moment.to)) {
        memory.unwantedSince = moment.to;
    }
    auto tick = static_cast<int64_t>(kind.interval * 1e9) + 1;
    if (running && memory.unwantedSince && moment.to - *memory.unwantedSince > tick)
        findings.push_back(std::string("a timer for ") + kind.selector + " runs on");
    memory.running = running;
}

void checkObservers(const Moment &moment, Memory &memory, Findings &findings) {
    for (const auto &event : moment.events) {
        if (event["kind"] != Value("biometric")) continue;
        if (event["what"] == Value("observe")) ++memory.observers;
        if (event["what"] == Value("unobserve")) --memory.observers;
    }
    if (memory.observers < 0 || memory.observers > 1)
        findings.push_back("the finger's monitor has " + std::to_string(memory.observers) + " observers");
    if (memory.observers && !memory.shown)
        findings.push_back("the finger's monitor is observed while no panel is shown");
}

} // namespace

void checkTimers(const Moment &moment, Memory &memory, Findings &findings) {
    const Observation &now = moment.now;
    if (int64_t polls = count(now, kPoll); polls != 1)
        findings.push_back("there are " + std::to_string(polls) + " timers for " + kPoll.selector);
    bool pulses = now.extension.needToPulse && now.itemVisible;
    checkKind(kPulse, moment, moment.logged(names::pulsing), pulses, memory.pulses, findings);
    if (now.extension.needToPulse && !memory.pulses.running)
        findings.push_back("a pulse is said to run and no timer moves it");
    // The follower comes at the end of the opening.
    checkKind(kFollower, moment, moment.logged(names::opening), memory.shown, memory.followers, findings);
    for (const auto &timer : now.timers)
        if (isExtensions(timer.target) && !isOf(timer, kPoll) && !isOf(timer, kPulse) &&
            !isOf(timer, kFollower))
            findings.push_back("a timer of " + std::to_string(timer.interval) + " s for " + timer.target +
                               " " + timer.selector + " is nobody's");
    checkObservers(moment, memory, findings);
}

} // namespace sim

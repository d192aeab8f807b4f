#include "RunLoop.hpp"

#include <map>
#include <utility>

namespace sim {

namespace {

struct Waiting {
    Nanos due;
    RunLoopModes modes;
    Clock::Task task;
    Clock::TaskId onClock; // 0: was due in another mode
};

struct RunLoop {
    RunLoopModes mode = kDefaultMode;
    Clock::TaskId last = 0;
    std::map<Clock::TaskId, Waiting> tasks;
};

RunLoop &runLoop() {
    static auto &loop = *new RunLoop; // outlives the timers of a process that exits
    return loop;
}

void run(Clock::TaskId id) {
    auto found = runLoop().tasks.find(id);
    found->second.onClock = 0;
    if (!(found->second.modes & runLoop().mode)) return;
    Clock::Task task = std::move(found->second.task);
    runLoop().tasks.erase(found);
    task();
}

void putOnClock(Clock::TaskId id, Waiting &waiting) {
    waiting.onClock = Clock::shared().schedule(waiting.due, Clock::Phase::timer, [id] { run(id); });
}

} // namespace

RunLoopModes runLoopModes(std::string_view name) {
    constexpr std::pair<std::string_view, RunLoopModes> kModes[] = {{"NSDefaultRunLoopMode", kDefaultMode},
                                                                    {"kCFRunLoopDefaultMode", kDefaultMode},
                                                                    {"NSRunLoopCommonModes", kCommonModes},
                                                                    {"kCFRunLoopCommonModes", kCommonModes},
                                                                    {"UITrackingRunLoopMode", kTrackingMode}};
    for (const auto &[known, modes] : kModes)
        if (known == name) return modes;
    return 0;
}

void setRunLoopMode(RunLoopModes mode) {
    if (std::exchange(runLoop().mode, mode) == mode) return;
    std::multimap<Nanos, Clock::TaskId> late;
    for (const auto &[id, waiting] : runLoop().tasks)
        if (!waiting.onClock && (waiting.modes & mode)) late.emplace(waiting.due, id);
    for (const auto &[due, id] : late) putOnClock(id, runLoop().tasks.at(id));
}

RunLoopModes runLoopMode() { return runLoop().mode; }

Clock::TaskId scheduleInModes(Nanos due, RunLoopModes modes, Clock::Task task) {
    Clock::TaskId id = ++runLoop().last;
    auto &waiting = runLoop().tasks[id];
    waiting = {.due = due, .modes = modes, .task = std::move(task), .onClock = 0};
    putOnClock(id, waiting);
    return id;
}

void cancelInModes(Clock::TaskId task) {
    auto found = runLoop().tasks.find(task);
    if (found == runLoop().tasks.end()) return;
    Clock::shared().cancel(found->second.onClock);
    runLoop().tasks.erase(found);
}

} // namespace sim

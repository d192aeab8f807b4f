// The virtual clock of one process. Nothing else tells the time, and time moves only in advance().
//
// Order at one instant: touches, timers, display links and animation completions, then the commit (layout).
// Frames stand at k/60 s; they are visited only while somebody has asked for them.
#pragma once

#include "Runtime/Values/Nanoseconds.hpp"

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <vector>

namespace sim {

// The k-th frame's time. Rounded down, so that whole twentieths of a second stand on frames exactly.
constexpr Nanos frameTime(int64_t k) { return k * kSecond / 60; }
// The first frame strictly after `time`.
Nanos nextFrame(Nanos time);

class Clock {
public:
    using Task = std::function<void()>;
    using TaskId = uint64_t;
    enum class Phase : uint8_t { touch, timer, animation };

    static Clock &shared();

    // Where the clock starts; to be called before anything is scheduled. A home screen that boots again
    // in a running device starts at that device's time.
    void start(Nanos now) { now_ = now; }
    Nanos now() const { return now_; }

    // Runs `task` once at `due` (on the clock's next run when `due` has passed). Tasks due at the same time
    // run by phase, then in the order in which they were scheduled. Never 0.
    TaskId schedule(Nanos due, Phase phase, Task task);
    // Calls `task` on every frame from the next one on.
    TaskId everyFrame(Task task);
    // Unknown and finished tasks are ignored.
    void cancel(TaskId task);

    // When something is due next: a task or a frame that somebody waits for.
    std::optional<Nanos> next() const;
    // Runs what is due up to and including `until`, in order, and leaves the clock there.
    void advance(Nanos until);
    // Runs what is due now, and commits.
    void settleNow();

    // `commit` runs after the tasks of each instant: pending layout, pending status-bar changes and the like.
    void onCommit(Task commit) { commits_.push_back(std::move(commit)); }
    // `guard` is handed every task and must call it (an autorelease pool goes around it).
    void setGuard(std::function<void(const Task &)> guard) { guard_ = std::move(guard); }

private:
    struct Key {
        Nanos due;
        Phase phase;
        TaskId id;
        auto operator<=>(const Key &) const = default;
    };
    void runInstant();
    bool runFirst(Phase latest);
    void runFrame();
    void call(const Task &task);

    Nanos now_ = 0;
    Nanos lastFrame_ = -1;
    TaskId lastId_ = 0;
    std::map<Key, Task> tasks_;
    std::map<TaskId, Key> keys_;
    std::map<TaskId, Task> frameTasks_;
    std::vector<Task> commits_;
    std::function<void(const Task &)> guard_;
};

} // namespace sim

#include "Clock.hpp"

#include <algorithm>
#include <vector>

namespace sim {

Nanos nextFrame(Nanos time) {
    int64_t k = time * 60 / kSecond;
    while (frameTime(k) <= time) ++k;
    return frameTime(k);
}

Clock &Clock::shared() {
    static Clock clock;
    return clock;
}

Clock::TaskId Clock::schedule(Nanos due, Phase phase, Task task) {
    Key key{std::max(due, now_), phase, ++lastId_};
    tasks_.emplace(key, std::move(task));
    keys_.emplace(key.id, key);
    return key.id;
}

Clock::TaskId Clock::everyFrame(Task task) {
    if (frameTasks_.empty()) lastFrame_ = now_;
    frameTasks_.emplace(++lastId_, std::move(task));
    return lastId_;
}

void Clock::cancel(TaskId task) {
    if (auto key = keys_.find(task); key != keys_.end()) {
        tasks_.erase(key->second);
        keys_.erase(key);
    }
    frameTasks_.erase(task);
}

std::optional<Nanos> Clock::next() const {
    std::optional<Nanos> due;
    if (!tasks_.empty()) due = tasks_.begin()->first.due;
    if (!frameTasks_.empty()) {
        Nanos frame = nextFrame(lastFrame_);
        due = due ? std::min(*due, frame) : frame;
    }
    return due;
}

void Clock::advance(Nanos until) {
    for (auto due = next(); due && *due <= until; due = next()) {
        now_ = std::max(now_, *due);
        runInstant();
    }
    now_ = std::max(now_, until);
}

void Clock::settleNow() {
    runInstant();
    for (auto due = next(); due && *due <= now_; due = next()) runInstant();
}

void Clock::runInstant() {
    // Display links come after the timers and before the animation completions of the same instant.
    while (runFirst(Phase::timer)) {}
    runFrame();
    while (runFirst(Phase::animation)) {}
    for (const auto &commit : commits_) call(commit);
}

// Runs the first task that is due when its phase is no later than `latest`.
bool Clock::runFirst(Phase latest) {
    if (tasks_.empty()) return false;
    auto first = tasks_.begin();
    if (first->first.due > now_ || first->first.phase > latest) return false;
    Task task = std::move(first->second);
    keys_.erase(first->first.id);
    tasks_.erase(first);
    call(task);
    return true;
}

void Clock::runFrame() {
    if (frameTasks_.empty() || nextFrame(lastFrame_) > now_) return;
    lastFrame_ = now_;
    std::vector<TaskId> ids;
    for (const auto &[id, task] : frameTasks_) ids.push_back(id);
    for (TaskId id : ids) {
        auto found = frameTasks_.find(id);
        if (found == frameTasks_.end()) continue;
        Task task = found->second;
        call(task);
    }
}

void Clock::call(const Task &task) {
    if (guard_) {
        guard_(task);
    } else {
        task();
    }
}

} // namespace sim

#include "Fingers.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

namespace sim {

namespace {

constexpr int64_t kFingers = 10;

// A hundredth of a point is finer than any pointer; shorter numbers make a better script.
double tidy(double coordinate) { return std::round(coordinate * 100) / 100 + 0.0; }

} // namespace

void Fingers::down(Pointer pointer, double x, double y) {
    lift(pointer);
    int64_t number = 1;
    auto taken = [&] {
        return std::ranges::any_of(down_, [&](const auto &entry) { return entry.second.number == number; });
    };
    while (taken()) ++number;
    if (number > kFingers) throw CallError("there are ten fingers on the screen already");
    x = tidy(x);
    y = tidy(y);
    int64_t began = device_.now();
    device_.touchDown(x, y, number);
    down_.emplace(pointer, Finger{number, x, y, began});
}

void Fingers::move(Pointer pointer, double x, double y) {
    auto found = down_.find(pointer);
    if (found == down_.end() || found->second.lifting) return;
    Finger &finger = found->second;
    x = tidy(x);
    y = tidy(y);
    finger.moved = finger.moved || x != finger.x || y != finger.y;
    finger.x = x;
    finger.y = y;
}

void Fingers::commit(Finger &finger) {
    if (std::exchange(finger.moved, false)) device_.touchMove(finger.x, finger.y, finger.number);
}

void Fingers::commit() {
    std::vector<Pointer> due;
    for (auto &[pointer, finger] : down_) {
        commit(finger);
        if (finger.lifting && device_.now() > finger.began) due.push_back(pointer);
    }
    for (const auto &pointer : due) lift(pointer);
}

void Fingers::up(Pointer pointer) {
    auto found = down_.find(pointer);
    if (found == down_.end()) return;
    found->second.lifting = true;
    if (device_.now() > found->second.began) lift(pointer);
}

void Fingers::lift(Pointer pointer) {
    auto found = down_.find(pointer);
    if (found == down_.end()) return;
    Finger finger = found->second;
    down_.erase(found);
    commit(finger);
    device_.touchUp(finger.number);
}

void Fingers::liftAll() {
    while (!down_.empty()) lift(down_.begin()->first);
}

void Fingers::liftAll(uint64_t page) {
    std::vector<Pointer> pointers;
    for (const auto &[pointer, finger] : down_)
        if (pointer.page == page) pointers.push_back(pointer);
    for (const auto &pointer : pointers) lift(pointer);
}

} // namespace sim

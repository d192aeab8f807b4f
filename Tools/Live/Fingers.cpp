#include "Fingers.hpp"

#include "Runtime/Values/Nanoseconds.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

namespace sim {

namespace {

constexpr int64_t kFingers = 10;
constexpr double kStill = 2; // points: no finger keeps stiller

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
    TouchPlace place = device_.touchDown(x, y, number);
    down_.emplace(pointer, Finger{number, x, y, place.x - x, place.y - y, began});
}

void Fingers::move(Pointer pointer, double x, double y) {
    auto found = down_.find(pointer);
    if (found == down_.end() || found->second.lifting) return;
    Finger &finger = found->second;
    x = tidy(x);
    y = tidy(y);
    if (finger.still && std::hypot(x - finger.x, y - finger.y) < kStill) return;
    finger.still = false;
    if (x == finger.x && y == finger.y) return;
    finger.x = x;
    finger.y = y;
    finger.waiting.push_back({x, y});
}

void Fingers::put(const Finger &finger, Place place) {
    device_.touchMove(tidy(place.x + finger.shiftX), tidy(place.y + finger.shiftY), finger.number);
}

void Fingers::commit(Finger &finger) {
    auto places = std::exchange(finger.waiting, {});
    if (!places.empty()) put(finger, places.back());
}

bool Fingers::mayLift(const Finger &finger) const {
    int64_t passed = device_.now() - finger.began;
    return finger.still ? passed >= kTapDuration : passed > 0;
}

bool Fingers::mayBeTap() const {
    if (down_.size() != 1) return false;
    const Finger &finger = down_.begin()->second;
    return finger.still && !finger.lifting && device_.now() - finger.began == kTapDuration;
}

int64_t Fingers::atMost(int64_t frames) const {
    for (const auto &[pointer, finger] : down_) {
        int64_t rest = finger.began + kTapDuration - device_.now();
        if (finger.still && rest > 0)
            frames = std::min(frames, std::max<int64_t>(1, (rest * 60 + kSecond / 2) / kSecond));
    }
    return frames;
}

void Fingers::commit() {
    for (auto &[pointer, finger] : down_) commit(finger);
    liftDue();
}

void Fingers::follow() {
    for (auto &[pointer, finger] : down_) {
        std::vector<Place> &places = finger.waiting;
        if (places.empty()) continue;
        Place next = places.size() == 1 ? places.back() : places[places.size() - 2];
        places.erase(places.begin(), places.end() - (places.size() > 1));
        put(finger, next);
    }
    liftDue();
}

void Fingers::liftDue() {
    std::vector<Pointer> due;
    for (const auto &[pointer, finger] : down_)
        if (finger.lifting && finger.waiting.empty() && mayLift(finger)) due.push_back(pointer);
    for (const auto &pointer : due) lift(pointer);
}

void Fingers::up(Pointer pointer) {
    auto found = down_.find(pointer);
    if (found == down_.end()) return;
    found->second.lifting = true;
    // Not with a leap: the places before the last one come first.
    if (found->second.waiting.size() < 2 && mayLift(found->second)) lift(pointer);
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

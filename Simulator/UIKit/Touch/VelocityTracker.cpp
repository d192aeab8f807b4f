#include "VelocityTracker.hpp"

#include <algorithm>

namespace sim {

namespace {

// What is older than this says nothing about the speed now. Inferred.
constexpr Nanos kWindow = kSecond / 20;
// A finger reports itself once a frame: only after longer silence does it lie still.
constexpr Nanos kSilence = kSecond / 40;

} // namespace

void VelocityTracker::start(Nanos time, Vector place) { samples_ = {{time, place}}; }

void VelocityTracker::add(Nanos time, Vector place) {
    samples_.push_back({time, place});
    // One sample from before the window stays, to know the place at its start.
    while (samples_.size() > 2 && samples_[1].time <= time - kWindow) samples_.erase(samples_.begin());
}

VelocityTracker::Vector VelocityTracker::placeAt(Nanos time) const {
    auto after =
        std::find_if(samples_.begin(), samples_.end(), [=](const Sample &s) { return s.time > time; });
    if (after == samples_.end()) return samples_.back().place;
    if (after == samples_.begin()) return samples_.front().place;
    auto before = after - 1;
    double part = double(time - before->time) / double(after->time - before->time);
    return {before->place.x + part * (after->place.x - before->place.x),
            before->place.y + part * (after->place.y - before->place.y)};
}

VelocityTracker::Vector VelocityTracker::at(Nanos now) const {
    if (samples_.empty()) return {};
    Nanos end = now - samples_.back().time <= kSilence ? samples_.back().time : now;
    Nanos begin = std::max(end - kWindow, samples_.front().time);
    if (begin >= end) return {};
    Vector from = placeAt(begin), to = placeAt(end);
    double seconds = toSeconds(end - begin);
    return {(to.x - from.x) / seconds, (to.y - from.y) / seconds};
}

} // namespace sim

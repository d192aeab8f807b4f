#include "ScrollPhysics.hpp"

#include <algorithm>
#include <cmath>

namespace sim {

namespace {

// The normal rate: of the speed, 0.998 is left after each millisecond.
const double kDecay = -1000 * std::log(0.998);
// Slower than this is at rest, nearer than that is there. Inferred.
constexpr double kSlowest = 10;
constexpr double kNearest = 0.25;
// How much of a pull the rubber band lets through at first. Inferred.
constexpr double kBandGive = 0.55;
// Angular frequencies of the springs at the edges and between pages, both critically damped. Inferred.
constexpr double kEdgeStiffness = 10;
constexpr double kPageStiffness = 20;
// A finger that lifts this fast turns the page. Inferred.
constexpr double kFlick = 200;

// A critically damped spring after `t` seconds, from `x` with speed `v`.
double spring(double x, double v, double stiffness, double t) {
    return (x + (v + stiffness * x) * t) * std::exp(-stiffness * t);
}

double springDuration(double x, double v, double stiffness) {
    constexpr double kStep = 1.0 / 240, kLongest = 4;
    double last = 0;
    for (double t = 0; t <= kLongest; t += kStep)
        if (std::fabs(spring(x, v, stiffness, t)) > kNearest) last = t + kStep;
    return last;
}

double travel(double velocity, double seconds) {
    return velocity / kDecay * (1 - std::exp(-kDecay * seconds));
}

// When the slowing content has come that far.
double timeToTravel(double way, double velocity) { return -std::log(1 - kDecay * way / velocity) / kDecay; }

} // namespace

double rubberBand(double beyond, double length) {
    if (length <= 0) return 0;
    return (1 - 1 / (beyond * kBandGive / length + 1)) * length;
}

double pullBehind(double shown, double length) {
    if (length <= 0) return 0;
    double left = std::max(1 - shown / length, 0.01);
    return (1 / left - 1) * length / kBandGive;
}

double pageOffset(double offset, double velocity, double pageLength, ScrollRange range) {
    if (pageLength <= 0) return range.clamp(offset);
    double page = offset / pageLength;
    double target = std::round(page);
    if (velocity > kFlick) target = std::floor(page) + 1;
    if (velocity < -kFlick) target = std::ceil(page) - 1;
    return range.clamp(target * pageLength);
}

void AxisMotion::springTo(double rest, double from, double velocity, double stiffness) {
    rest_ = rest;
    pull_ = from - rest;
    pullVelocity_ = velocity;
    stiffness_ = stiffness;
    springing_ = springDuration(pull_, velocity, stiffness);
}

AxisMotion AxisMotion::settle(double offset, double velocity, double rest) {
    AxisMotion motion;
    double pull = offset - rest;
    // Faster than this towards the rest it would shoot past.
    double fastest = kPageStiffness * std::fabs(pull);
    velocity = pull > 0 ? std::max(velocity, -fastest) : std::min(velocity, fastest);
    motion.springTo(rest, offset, velocity, kPageStiffness);
    return motion;
}

AxisMotion AxisMotion::decelerate(double offset, double velocity, ScrollRange range, bool bounces) {
    AxisMotion motion;
    double seconds = std::fabs(velocity) > kSlowest ? std::log(std::fabs(velocity) / kSlowest) / kDecay : 0;
    double end = offset + travel(velocity, seconds);
    bool outside = offset != range.clamp(offset);
    if (outside && end != range.clamp(end) && (offset - range.clamp(offset)) * (end - range.clamp(end)) > 0) {
        // Too slow to come back by itself.
        double edge = range.clamp(offset), pull = offset - edge;
        double fastest = kEdgeStiffness * std::fabs(pull);
        double back = pull > 0 ? std::max(velocity, -fastest) : std::min(velocity, fastest);
        motion.springTo(edge, offset, back, kEdgeStiffness);
        return motion;
    }
    motion.start_ = offset;
    motion.velocity_ = velocity;
    double edge = range.clamp(end);
    if (edge == end) {
        motion.slowing_ = seconds;
        motion.rest_ = end;
        return motion;
    }
    motion.slowing_ = timeToTravel(edge - offset, velocity);
    motion.rest_ = edge;
    if (bounces) motion.springTo(edge, edge, velocity * std::exp(-kDecay * motion.slowing_), kEdgeStiffness);
    return motion;
}

double AxisMotion::at(double seconds) const {
    if (seconds >= duration()) return rest_;
    if (seconds < slowing_) return start_ + travel(velocity_, seconds);
    return rest_ + spring(pull_, pullVelocity_, stiffness_, seconds - slowing_);
}

} // namespace sim

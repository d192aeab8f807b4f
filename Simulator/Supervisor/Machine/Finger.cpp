#include "Finger.hpp"

#include "Runtime/Values/Nanoseconds.hpp"
#include "SimulatedProcess.hpp"

#include <algorithm>

namespace sim {

namespace {

constexpr double kTapDuration = 0.1;
constexpr double kRest = 0.1;
constexpr double kSamplesPerSecond = 60;

} // namespace

void Finger::down(const TouchTarget &target) {
    if (isDown()) throw RequestError("the finger is down already");
    Object arguments{{"finger", number_}, {"x", target.x}, {"y", target.y}};
    if (target.view) arguments.emplace("view", *target.view);
    // The touch belongs to the home screen that was asked, whatever becomes of it.
    generation_ = device_.generation();
    touching_ = true;
    Value point = device_.act("touch_down", std::move(arguments));
    if (!isDown()) return;
    x_ = point["x"].number();
    y_ = point["y"].number();
}

void Finger::move(double x, double y) {
    if (!isDown()) throw RequestError("the finger is not down");
    x_ = x;
    y_ = y;
    device_.act("touch_move", {{"finger", number_}, {"x", x}, {"y", y}});
}

void Finger::up() {
    if (!isDown()) throw RequestError("the finger is not down");
    lift();
}

void Finger::lift() {
    if (isDown()) device_.act("touch_up", {{"finger", number_}});
    touching_ = false;
}

void Finger::tap(const TouchTarget &target) { hold(target, kTapDuration); }

void Finger::hold(const TouchTarget &target, double seconds) {
    down(target);
    device_.advance(fromSeconds(seconds));
    lift();
}

void Finger::path(double dx, double dy, double seconds) {
    double startX = x_, startY = y_;
    int64_t start = device_.now(), duration = fromSeconds(seconds);
    auto samples = std::max<int64_t>(1, std::llround(seconds * kSamplesPerSecond));
    for (int64_t i = 1; i <= samples && isDown(); ++i) {
        double part = static_cast<double>(i) / static_cast<double>(samples);
        device_.advance(std::max<int64_t>(0, start + duration * i / samples - device_.now()));
        if (isDown()) move(startX + dx * part, startY + dy * part);
    }
}

void Finger::drag(const TouchTarget &target, double dx, double dy, double seconds) {
    down(target);
    path(dx, dy, seconds);
    path(0, 0, kRest);
    lift();
}

void Finger::fling(const TouchTarget &target, double dx, double dy, double seconds) {
    down(target);
    path(dx, dy, seconds);
    lift();
}

} // namespace sim

// One finger on a device's screen. Points are of the screen as seen upright.
#pragma once

#include "SimulatedScreen.hpp"

namespace sim {

// Where a touch goes: a point, or a view's centre as presented at that moment.
struct TouchTarget {
    std::optional<int64_t> view;
    double x = 0, y = 0; // with a view: where it was when it was looked up, should it be gone
};

// Durations are in seconds. Throws RequestError when the finger is not where the call needs it: down twice,
// or moved while it is up. When the home screen starts anew under a touch, the rest of the movement is
// dropped.
class Finger {
public:
    // `number` tells it from the other fingers.
    explicit Finger(SimulatedScreen &device, int64_t number = 0) : device_(device), number_(number) {}

    void down(const TouchTarget &target);
    void move(double x, double y);
    void up();

    // Down for 0.1 s.
    void tap(const TouchTarget &target);
    void hold(const TouchTarget &target, double seconds);
    // Moves by (dx, dy) with 60 samples a second, then keeps still for 0.1 s so that no speed is left, then
    // lifts.
    void drag(const TouchTarget &target, double dx, double dy, double seconds);
    // The same without the rest: lifts with the last sample.
    void fling(const TouchTarget &target, double dx, double dy, double seconds);

private:
    bool isDown() const { return touching_ && generation_ == device_.generation(); }
    void path(double dx, double dy, double seconds);
    void lift();

    SimulatedScreen &device_;
    int64_t number_;
    bool touching_ = false;
    unsigned generation_ = 0;
    double x_ = 0, y_ = 0;
};

} // namespace sim

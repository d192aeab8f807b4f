// How a scroll view moves along one axis: plain functions of time. Offsets are in points, speeds in points a
// second and positive where the offset grows.
#pragma once

namespace sim {

// Where the offset may rest.
struct ScrollRange {
    double least = 0, most = 0;
    double clamp(double offset) const { return offset < least ? least : offset > most ? most : offset; }
};

// How far the content follows a finger that pulls it `beyond` the edge; `length` is that of the view.
double rubberBand(double beyond, double length);
// The pull that shows that much; the inverse.
double pullBehind(double shown, double length);

// The page to settle on after a finger let go: the next one in the direction of a flick, else the nearest.
double pageOffset(double offset, double velocity, double pageLength, ScrollRange range);

// What happens after the finger has let go. Starts at `at(0)`, is over at `duration()`, and then stands at
// `rest()`, which is within the range.
class AxisMotion {
public:
    // Slows down; springs back at an edge when `bounces`, else stops there.
    static AxisMotion decelerate(double offset, double velocity, ScrollRange range, bool bounces);
    // Settles on `rest` without shooting past it.
    static AxisMotion settle(double offset, double velocity, double rest);

    double at(double seconds) const;
    double duration() const { return slowing_ + springing_; }
    double rest() const { return rest_; }

private:
    void springTo(double rest, double from, double velocity, double stiffness);

    double start_ = 0, velocity_ = 0;                    // of the slowing part
    double slowing_ = 0;                                 // seconds that it lasts
    double pull_ = 0, pullVelocity_ = 0, stiffness_ = 0; // of the spring after it, measured from the rest
    double springing_ = 0;
    double rest_ = 0;
};

} // namespace sim

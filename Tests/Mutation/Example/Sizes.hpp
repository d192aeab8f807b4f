// A header whose constants two units share.
#pragma once

namespace example {

inline constexpr int kSlots = 3;      // a bound: cannot be switched
inline constexpr double kStep = 1.5;  // can
constexpr double kTwoSteps = kStep * 2;

struct Size {
    double width = 0, height = 0;
    static constexpr double least = 0.5;
};

double area(const Size &size);

} // namespace example

// A header whose constants two units share.
#pragma once

namespace example {

inline constexpr int kSlots = 3;      // a bound: cannot be switched
inline constexpr double kStep = 1.5;  // can
inline constexpr double kTwice = 2.0; // used by another constant only
constexpr double kTwoSteps = kStep * kTwice;

struct Size {
    double width = 0, height = 0;
    static constexpr double least = 0.5;
};

double area(const Size &size);

} // namespace example

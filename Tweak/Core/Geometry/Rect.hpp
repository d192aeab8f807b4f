// Plain numbers for the panel's geometry: double on 64-bit devices and float on 32-bit ones, like the
// platform's.
#pragma once

namespace pendix {

#if defined(__LP64__)
using Real = double;
#else
using Real = float;
#endif

struct Size {
    Real width = 0, height = 0;
    bool operator==(const Size &) const = default;
};

struct Rect {
    Real x = 0, y = 0, width = 0, height = 0;
    bool operator==(const Rect &) const = default;
};

} // namespace pendix

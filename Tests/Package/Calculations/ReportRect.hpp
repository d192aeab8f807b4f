// Results that are frames, one number at a time.
#pragma once

#include "Results.hpp"
#include "Tweak/Core/Geometry/Rect.hpp"

namespace results {

inline void reportRect(Report report, const char *name, const pendix::Rect &rect) {
    report(name, rect.x);
    report(name, rect.y);
    report(name, rect.width);
    report(name, rect.height);
}

} // namespace results

#include "Timing.hpp"

#include <algorithm>
#include <cmath>

namespace sim {

namespace {

double cubic(double p1, double p2, double t) {
    double u = 1 - t;
    return 3 * u * u * t * p1 + 3 * u * t * t * p2 + t * t * t;
}

} // namespace

double TimingCurve::at(double time) const {
    if (*this == linear() || time <= 0 || time >= 1) return std::clamp(time, 0.0, 1.0);
    // x(t) grows, so halving finds t; 50 steps leave less than a double's last bit.
    double low = 0, high = 1;
    for (int i = 0; i < 50; ++i) {
        double middle = (low + high) / 2;
        (cubic(x1, x2, middle) < time ? low : high) = middle;
    }
    return cubic(y1, y2, (low + high) / 2);
}

bool Timing::endless() const { return std::isinf(repeatCount); }

std::optional<Nanos> Timing::end() const {
    if (endless()) return std::nullopt;
    double run = static_cast<double>(duration) * (autoreverses ? 2 : 1);
    return begin + std::llround(run * repeatCount);
}

std::optional<double> Timing::progress(Nanos now) const {
    if (now < begin) {
        bool holds = fill == FillMode::backwards || fill == FillMode::both;
        return holds ? std::optional(0.0) : std::nullopt;
    }
    if (auto last = end(); last && now >= *last) {
        if (fill != FillMode::forwards && fill != FillMode::both) return std::nullopt;
        now = *last;
        if (autoreverses) return 0;
        double part = std::fmod(repeatCount, 1.0);
        return curve.at(part == 0 ? 1 : part);
    }
    if (duration <= 0) return std::nullopt;
    double runs = static_cast<double>(now - begin) / static_cast<double>(duration);
    double part = std::fmod(runs, 1.0);
    bool backwards = autoreverses && static_cast<int64_t>(runs) % 2 == 1;
    return curve.at(backwards ? 1 - part : part);
}

} // namespace sim

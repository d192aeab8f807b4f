#include "ViewAnimations.h"

#include "UIKit/QuartzCore/CAAnimation+Further.h"

#include <cmath>

namespace sim {

namespace {

Array numbers(std::initializer_list<CGFloat> values) {
    Array result;
    for (CGFloat value : values) result.emplace_back(rounded(value));
    return result;
}

struct Plain {
    Value operator()(std::monostate) const { return {}; }
    Value operator()(double value) const { return rounded(value); }
    Value operator()(CGPoint point) const { return Object{{"x", rounded(point.x)}, {"y", rounded(point.y)}}; }
    Value operator()(CGSize size) const {
        return Object{{"w", rounded(size.width)}, {"h", rounded(size.height)}};
    }
    Value operator()(CGRect rect) const {
        return Object{{"x", rounded(rect.origin.x)},
                      {"y", rounded(rect.origin.y)},
                      {"w", rounded(rect.size.width)},
                      {"h", rounded(rect.size.height)}};
    }
    Value operator()(CGAffineTransform t) const { return numbers({t.a, t.b, t.c, t.d, t.tx, t.ty}); }
    Value operator()(const render::Rgba &color) const { return colorText(color); }
    Value operator()(const std::vector<double> &values) const {
        Array result;
        for (double value : values) result.emplace_back(rounded(value));
        return result;
    }
};

Value repeats(const Timing &timing) {
    return timing.endless() ? Value("forever") : Value(rounded(timing.repeatCount));
}

} // namespace

double rounded(double value) {
    constexpr double kFraction = 1e6;
    // Not minus zero.
    return std::round(value * kFraction) / kFraction + 0.0;
}

Value animationsOf(CALayer *layer) {
    Array result;
    for (const auto &animation : state(layer).animations)
        result.push_back(Object{{"key", animation.key},
                                {"keypath", animation.keyPath},
                                {"from", std::visit(Plain(), animation.from)},
                                {"to", std::visit(Plain(), animation.to)},
                                {"duration", toSeconds(animation.timing.duration)},
                                {"repeats", repeats(animation.timing)},
                                {"autoreverses", animation.timing.autoreverses}});
    return result;
}

} // namespace sim

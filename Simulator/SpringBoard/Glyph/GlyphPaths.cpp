#include "GlyphPaths.hpp"

#include <cmath>

namespace sim {

namespace {

using Verb = render::PathElement::Verb;

// A part of an upright ellipse around a point, clockwise from one angle to the other; degrees from the right.
// All else in shares of the side.
struct Arc {
    double x, y, radius, start, end;
};

constexpr double kTall = 1.14; // height of an ellipse by its width

// From the outermost ridge inwards; the lower ones bend around the upper ones' ends.
constexpr Arc kRidges[] = {
    {0.50, 0.50, 0.43, 226, 318}, {0.50, 0.52, 0.36, 172, 372}, {0.50, 0.52, 0.29, 158, 300},
    {0.50, 0.52, 0.29, 318, 392}, {0.50, 0.53, 0.22, 150, 402}, {0.50, 0.54, 0.15, 196, 412},
    {0.50, 0.55, 0.08, 168, 425}, {0.50, 0.53, 0.36, 30, 74},   {0.50, 0.53, 0.29, 52, 110},
    {0.50, 0.53, 0.36, 92, 150},  {0.50, 0.54, 0.15, 70, 158},  {0.50, 0.52, 0.43, 38, 66},
    {0.50, 0.52, 0.43, 118, 156},
};

render::Point on(const Arc &arc, double radians, double side) {
    return {(arc.x + arc.radius * std::cos(radians)) * side,
            (arc.y + arc.radius * kTall * std::sin(radians)) * side};
}

// In pieces of at most an eighth of a turn, which a cubic follows closely.
render::Path path(const Arc &arc, double side) {
    constexpr double kPiece = M_PI / 4;
    double start = arc.start * M_PI / 180, sweep = (arc.end - arc.start) * M_PI / 180;
    int pieces = static_cast<int>(std::ceil(sweep / kPiece));
    double step = sweep / pieces, reach = 4.0 / 3 * std::tan(step / 4) * arc.radius * side;
    render::Path result;
    result.elements.push_back({Verb::move, {on(arc, start, side), {}, {}}});
    for (int i = 0; i < pieces; ++i) {
        double a = start + i * step, b = a + step;
        render::Point from = on(arc, a, side), to = on(arc, b, side);
        render::Point out{from.x - reach * std::sin(a), from.y + reach * kTall * std::cos(a)};
        render::Point in{to.x + reach * std::sin(b), to.y - reach * kTall * std::cos(b)};
        result.elements.push_back({Verb::curve, {out, in, to}});
    }
    return result;
}

} // namespace

std::vector<render::Path> fingerprintRidges(double side) {
    std::vector<render::Path> result;
    for (const auto &arc : kRidges) result.push_back(path(arc, side));
    return result;
}

render::Path tickCircle(double side) {
    constexpr double kMargin = 0.06;
    return render::Path::oval(
        {kMargin * side, kMargin * side, (1 - 2 * kMargin) * side, (1 - 2 * kMargin) * side});
}

render::Path tickMark(double side) {
    render::Path result;
    result.elements.push_back({Verb::move, {{0.28 * side, 0.52 * side}, {}, {}}});
    result.elements.push_back({Verb::line, {{0.44 * side, 0.68 * side}, {}, {}}});
    result.elements.push_back({Verb::line, {{0.73 * side, 0.34 * side}, {}, {}}});
    return result;
}

double ridgeWidth(double side) { return 0.034 * side; }
double tickWidth(double side) { return 0.045 * side; }

} // namespace sim

#include "Geometry.hpp"

#include <algorithm>

namespace render {

namespace {

using Verb = PathElement::Verb;

// How far the control points of a quarter circle lie from its ends, in radii.
constexpr double kQuarterCircle = 0.5522847498307936;

// A rounded rectangle whose corners are quarters of ellipses.
Path roundedBox(const Rect &rect, double rx, double ry) {
    double left = rect.x, top = rect.y, right = rect.x + rect.width, bottom = rect.y + rect.height;
    double kx = rx * (1 - kQuarterCircle), ky = ry * (1 - kQuarterCircle);
    return {{
        {Verb::move, {{left + rx, top}}},
        {Verb::line, {{right - rx, top}}},
        {Verb::curve, {{right - kx, top}, {right, top + ky}, {right, top + ry}}},
        {Verb::line, {{right, bottom - ry}}},
        {Verb::curve, {{right, bottom - ky}, {right - kx, bottom}, {right - rx, bottom}}},
        {Verb::line, {{left + rx, bottom}}},
        {Verb::curve, {{left + kx, bottom}, {left, bottom - ky}, {left, bottom - ry}}},
        {Verb::line, {{left, top + ry}}},
        {Verb::curve, {{left, top + ky}, {left + kx, top}, {left + rx, top}}},
        {Verb::close, {}},
    }};
}

} // namespace

Path Path::rect(const Rect &rect) {
    double right = rect.x + rect.width, bottom = rect.y + rect.height;
    return {{
        {Verb::move, {{rect.x, rect.y}}},
        {Verb::line, {{right, rect.y}}},
        {Verb::line, {{right, bottom}}},
        {Verb::line, {{rect.x, bottom}}},
        {Verb::close, {}},
    }};
}

Path Path::roundedRect(const Rect &rect, double radius) {
    double most = std::min(rect.width, rect.height) / 2;
    double limited = std::min(radius, most);
    if (!(limited > 0)) return Path::rect(rect);
    return roundedBox(rect, limited, limited);
}

Path Path::oval(const Rect &rect) { return roundedBox(rect, rect.width / 2, rect.height / 2); }

} // namespace render

#include "TextLayout.hpp"

#include <cmath>

namespace render {

namespace {

// Parts of the point size, as the platform's own face has them. Only the heights follow it: the widths are
// those of Inter, which runs wider.
constexpr double kAscent = 0.952, kDescent = 0.213, kLeading = 0.028;

double thousandths(double points) { return std::ceil(points * 1000 - 1e-6) / 1000; }

} // namespace

FontMetrics fontMetrics(Face, double size) {
    return {kAscent * size, kDescent * size, (kAscent + kDescent + kLeading) * size};
}

Size measureText(const std::string &text, const TextStyle &style, double maxWidth) {
    auto layout = layOut(text, style, maxWidth);
    return {thousandths(layout->width()), thousandths(layout->height())};
}

} // namespace render

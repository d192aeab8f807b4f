// The drawings of the status bar's symbols, as SVG of one colour (`#rrggbb`).
#pragma once

#include <string>

namespace sim {

struct Glyph {
    double width, height; // points
    std::string svg;
};

// Five dots, the first `bars` of them full.
Glyph signalGlyph(int bars, const std::string &color);
// A fan of three, the inner `bars` of them full.
Glyph wifiGlyph(int bars, const std::string &color);
// `level` from 0 to 100.
Glyph batteryGlyph(int level, const std::string &color);

} // namespace sim

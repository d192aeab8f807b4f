#include "StatusBarGlyphs.hpp"

#include <cmath>
#include <sstream>

namespace sim {

namespace {

Glyph glyph(double width, double height, const std::string &color, const std::string &content) {
    std::ostringstream svg;
    svg << R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 )" << width << ' ' << height
        << R"(" fill=")" << color << R"(" stroke=")" << color << R"(" stroke-width="0">)" << content
        << "</svg>";
    return {width, height, svg.str()};
}

// A quarter circle that opens upwards around (x, y).
std::string arc(double x, double y, double radius) {
    double reach = radius * std::sqrt(0.5);
    std::ostringstream path;
    path << 'M' << x - reach << ' ' << y - reach << 'A' << radius << ' ' << radius << " 0 0 1 " << x + reach
         << ' ' << y - reach;
    return path.str();
}

} // namespace

Glyph signalGlyph(int bars, const std::string &color) {
    constexpr int kDots = 5;
    constexpr double kDiameter = 5.5, kPitch = 7, kLine = 0.75;
    std::ostringstream content;
    for (int i = 0; i < kDots; ++i) {
        bool full = i < bars;
        content << R"(<circle cx=")" << kDiameter / 2 + i * kPitch << R"(" cy=")" << kDiameter / 2
                << R"(" r=")" << (full ? kDiameter : kDiameter - kLine) / 2 << '"';
        if (!full) content << R"( fill="none" stroke-width=")" << kLine << '"';
        content << "/>";
    }
    return glyph(kDiameter + (kDots - 1) * kPitch, kDiameter, color, content.str());
}

Glyph wifiGlyph(int bars, const std::string &color) {
    constexpr int kBands = 3;
    constexpr double kWidth = 13, kHeight = 9.5, kTip = 9.3, kCore = 2.9, kBand = 2.05, kPitch = 3.05;
    std::ostringstream content;
    for (int i = 0; i < kBands; ++i) {
        content << R"(<path d=")" << arc(kWidth / 2, kTip, i == 0 ? kCore : kCore + i * kPitch - kBand / 2);
        if (i == 0) content << 'L' << kWidth / 2 << ' ' << kTip << 'z' << '"';
        if (i > 0) content << R"(" fill="none" stroke-width=")" << kBand << '"';
        content << R"( opacity=")" << (i < bars ? 1 : 0.3) << R"("/>)";
    }
    return glyph(kWidth, kHeight, color, content.str());
}

Glyph batteryGlyph(int level, const std::string &color) {
    constexpr double kWidth = 24.5, kHeight = 9.5, kBody = 22, kLine = 0.5, kInset = 1.5;
    double charge = (kBody - 2 * kInset) * level / 100;
    std::ostringstream content;
    content << R"(<rect x="0.25" y="0.25" width=")" << kBody - kLine << R"(" height=")" << kHeight - kLine
            << R"(" rx="1.6" fill="none" stroke-width=")" << kLine << R"("/>)"
            << R"(<rect x=")" << kInset << R"(" y=")" << kInset << R"(" width=")" << charge << R"(" height=")"
            << kHeight - 2 * kInset << R"(" rx="0.5"/>)"
            << R"(<path d="M)" << kBody + 0.9 << " 3.1a1.7 1.7 0 0 1 0 3.3z\"/>";
    return glyph(kWidth, kHeight, color, content.str());
}

} // namespace sim

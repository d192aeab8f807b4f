#include "Part.hpp"

#include "Settings.hpp"

#include <cmath>

namespace sim {

namespace {

std::string textOf(double number) {
    std::string text = std::to_string(number);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.ends_with('.')) text.pop_back();
    return text;
}

} // namespace

Part::Part(const SeenView &view, std::string what, Findings &findings)
    : view_(view), what_(std::move(what)), findings_(findings) {}

void Part::number(const char *name, double is, double wanted, double tolerance) const {
    if (!std::isnan(wanted) && std::abs(is - wanted) > tolerance)
        findings_.push_back(what_ + ": its " + name + " is " + textOf(is) + ", and " + textOf(wanted) +
                            " is right");
}

void Part::text(const char *name, const std::string &is, const std::string &wanted) const {
    if (is != wanted)
        findings_.push_back(what_ + ": its " + name + " is \"" + is + "\", and \"" + wanted + "\" is right");
}

const Part &Part::at(double x, double y, double w, double h) const {
    constexpr double kTolerance = 0.51; // points
    number("x", view_.frame.x, x, kTolerance);
    number("y", view_.frame.y, y, kTolerance);
    number("width", view_.frame.w, w, kTolerance);
    number("height", view_.frame.h, h, kTolerance);
    return *this;
}

const Part &Part::round(double radius) const {
    number("corner radius", view_.radius, radius, 0.3);
    return *this;
}

const Part &Part::bordered(double width) const {
    number("border", view_.border, width, 0.1);
    return *this;
}

const Part &Part::on(const std::string &background) const {
    text("background", view_.background, background);
    return *this;
}

const Part &Part::in(const std::string &ink) const {
    text("colour", view_.ink, ink);
    return *this;
}

const Part &Part::sized(double font) const {
    number("font's size", view_.font, font, 0.1);
    return *this;
}

const Part &Part::says(const std::string &said) const {
    text("text", view_.text, said);
    return *this;
}

const Part &Part::seenAt(double alpha) const {
    number("alpha", view_.alpha, alpha, 0.02);
    return *this;
}

Colours coloursOf(const Value &settings) {
    const std::string black = "#000000ff", white = "#ffffffff";
    const bool light = isOn(settings, "light");
    return {light ? black : white, light ? white : black, light};
}

} // namespace sim

#include "Looks.h"

#include "Render/Renderer.hpp"
#include "UIKit/Application/ApplicationState.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace harness {

namespace {

const render::Bitmap &draw() {
    static render::Renderer renderer;
    return renderer.draw(sim::currentScene());
}

uint32_t colorOf(const render::Bitmap &picture, int column, int row) {
    return picture.pixels.at(static_cast<size_t>(row * picture.width + column)) & 0xffffff;
}

} // namespace

std::string text(double number) {
    char result[32];
    // The sum turns a negative zero into a plain one.
    std::snprintf(result, sizeof result, "%g", std::round(number * 1000) / 1000 + 0.0);
    return result;
}

std::string text(CGPoint point) { return text(point.x) + " " + text(point.y); }
std::string text(CGSize size) { return text(size.width) + " " + text(size.height); }
std::string text(CGRect rect) { return text(rect.origin) + " " + text(rect.size); }

std::string colorAt(CGPoint point) {
    const render::Bitmap &picture = draw();
    auto column = static_cast<int>(point.x * picture.scale), row = static_cast<int>(point.y * picture.scale);
    uint32_t color = colorOf(picture, column, row);
    const std::pair<uint32_t, const char *> names[] = {
        {0xff0000, "red"}, {0x00ff00, "green"}, {0x0000ff, "blue"}, {0xffffff, "white"}, {0, "black"}};
    for (auto [known, name] : names)
        if (color == known) return name;
    char result[8];
    std::snprintf(result, sizeof result, "#%06x", color);
    return result;
}

CGRect inkOnScreen() {
    const render::Bitmap &picture = draw();
    int left = picture.width, right = 0, top = picture.height, bottom = 0;
    for (int row = 0; row < picture.height; ++row) {
        for (int column = 0; column < picture.width; ++column) {
            if (colorOf(picture, column, row) == 0) continue;
            left = std::min(left, column), right = std::max(right, column + 1);
            top = std::min(top, row), bottom = std::max(bottom, row + 1);
        }
    }
    if (right == 0) return CGRectZero;
    return CGRectMake(left / picture.scale, top / picture.scale, (right - left) / picture.scale,
                      (bottom - top) / picture.scale);
}

UIView *addColored(UIView *superview, CGRect frame, UIColor *color, NSInteger tag) {
    UIView *view = addView(superview, frame);
    [view setBackgroundColor:color];
    [view setTag:tag];
    return view;
}

std::string tagOf(UIView *view) { return view ? std::to_string([view tag]) : "nothing"; }

} // namespace harness

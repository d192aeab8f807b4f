// Plain geometry of the display list. Units are points unless said otherwise; y grows downwards.
#pragma once

#include <vector>

namespace render {

struct Point {
    double x = 0, y = 0;
    bool operator==(const Point &) const = default;
};

struct Size {
    double width = 0, height = 0;
    bool operator==(const Size &) const = default;
};

struct Rect {
    double x = 0, y = 0, width = 0, height = 0;
    bool operator==(const Rect &) const = default;
    bool empty() const { return width <= 0 || height <= 0; }
};

struct Insets {
    double top = 0, left = 0, bottom = 0, right = 0;
    bool operator==(const Insets &) const = default;
};

// x' = a x + c y + tx, y' = b x + d y + ty
struct Affine {
    double a = 1, b = 0, c = 0, d = 1, tx = 0, ty = 0;
    bool operator==(const Affine &) const = default;
};

// Whole pixels of a bitmap.
struct PixelRect {
    int x = 0, y = 0, width = 0, height = 0;
    bool operator==(const PixelRect &) const = default;
    bool empty() const { return width <= 0 || height <= 0; }
};

// Straight (not premultiplied) components from 0 to 1.
struct Rgba {
    double red = 0, green = 0, blue = 0, alpha = 0;
    bool operator==(const Rgba &) const = default;
};

// One step of a path: as many of the points count as the verb needs (1, 1, 3, 0).
struct PathElement {
    enum class Verb { move, line, curve, close } verb;
    Point points[3];
    bool operator==(const PathElement &) const = default;
};

struct Path {
    std::vector<PathElement> elements;
    bool operator==(const Path &) const = default;

    static Path rect(const Rect &rect);
    // The radius is limited to half the shorter side.
    static Path roundedRect(const Rect &rect, double radius);
    static Path oval(const Rect &rect);
};

} // namespace render

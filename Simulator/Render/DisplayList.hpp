// What is to be drawn: a tree of plain values that knows no view class. Two equal trees look the same, so the
// renderer finds what changed by comparing a tree with the one before it.
#pragma once

#include "Bitmap.hpp"
#include "Geometry.hpp"
#include "Text.hpp"

#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace render {

// A bitmap repeated from the origin of what it fills.
struct Pattern {
    BitmapRef tile;
    bool operator==(const Pattern &) const = default;
};

using Paint = std::variant<Rgba, Pattern>;

// Colours along the line from `start` to `end`, which are in units of the node's bounds; before the first and
// after the last location the colour stays.
struct Gradient {
    std::vector<Rgba> colors;
    std::vector<double> locations; // as many as colours
    Point start, end;
    bool operator==(const Gradient &) const = default;
};

struct Shape {
    Path path;
    std::optional<Rgba> fill;
    std::optional<Rgba> stroke;
    double strokeWidth = 1;
    // The part of the path that is stroked, from 0 to 1 of its length.
    double strokeStart = 0, strokeEnd = 1;
    bool roundCaps = false;
    bool operator==(const Shape &) const = default;
};

struct Image {
    BitmapRef bitmap;
    Rect rect;                // where it goes, in the node's coordinates; it is stretched to fit
    Insets caps;              // points at the edges that are not stretched; the middle is tiled
    std::optional<Rgba> tint; // paints this colour through the image's alpha
    bool operator==(const Image &) const = default;
};

struct TextRun {
    std::string text; // UTF-8
    TextStyle style;
    Rgba color;
    std::optional<Pattern> pattern; // instead of the colour
    Rect box;                       // lines are centred vertically in it
    bool operator==(const TextRun &) const = default;
};

using Drawing = std::variant<Shape, Image, TextRun>;

struct Shadow {
    Rgba color;
    double opacity = 0;
    double radius = 3; // of the blur, in points
    Size offset;
    std::optional<Path> path; // absent: the outline of what the node shows
    bool operator==(const Shadow &) const = default;
};

// Everything drawn so far, seen through a material. Applied in this order.
struct Backdrop {
    double blurRadius = 0; // points
    double saturation = 1; // 1 leaves colours as they are
    double grayLevel = 0, grayAlpha = 0;
    std::optional<Rgba> tint;
    bool operator==(const Backdrop &) const = default;
};

struct Node {
    // Tells nodes of one frame from one another and recognises them in the next; 0 for a node without a past.
    uint64_t id = 0;
    Affine transform; // from this node's coordinates to its parent's
    Rect bounds;
    double opacity = 1; // of the node and its children together
    double cornerRadius = 0;
    bool clips = false; // to the rounded bounds; the shadow too

    std::optional<Shadow> shadow;
    std::optional<Backdrop> backdrop;
    std::optional<Paint> background;
    std::optional<Gradient> gradient;
    std::vector<Drawing> drawings;
    double borderWidth = 0; // inside the bounds, above the children
    Rgba borderColor;

    std::vector<Node> children; // back to front
    std::shared_ptr<Node> mask; // its alpha keeps or drops what the node shows; in the node's coordinates

    bool operator==(const Node &other) const;
};

// One picture of a whole screen.
struct Scene {
    Size size; // points
    double scale = 1;
    std::vector<Node> roots;        // back to front
    Rgba background = {0, 0, 0, 1}; // what shows where nothing is drawn; alpha 0 for a picture with holes
    bool operator==(const Scene &) const = default;
};

} // namespace render

// Small scenes, and what is seen of them.
#pragma once

#include "Render/Renderer.hpp"

#include <gtest/gtest.h>

namespace render {

constexpr Rgba white = {1, 1, 1, 1}, black = {0, 0, 0, 1}, red = {1, 0, 0, 1}, green = {0, 1, 0, 1},
               blue = {0, 0, 1, 1};

// A view of one colour at a place in its parent.
Node box(const Rect &frame, const Rgba &color);
// A view that shows nothing itself.
Node holder(const Rect &frame);
Node with(Node parent, std::vector<Node> children);
// A view that shows one drawing.
Node drawn(const Rect &frame, Drawing drawing);
TextRun line(const std::string &text, const Rect &box, TextStyle style = {}, Rgba color = white);

// A scene of `width` × `height` points.
Scene screen(double width, double height, std::vector<Node> roots, double scale = 1);

Bitmap draw(const Scene &scene);

uint32_t pixel(const Bitmap &bitmap, int x, int y);
// "aarrggbb", premultiplied.
std::string hex(uint32_t pixel);
// How far two pixels are apart in the channel where they differ most.
int difference(uint32_t one, uint32_t other);

// The smallest rectangle round all pixels that differ from `color`.
PixelRect inkOf(const Bitmap &bitmap, uint32_t color = 0xff000000);

// A bitmap from one character a pixel: r, g, b, w (white), k (black), "." (clear).
BitmapRef pixelArt(std::initializer_list<const char *> rows, double scale = 1);

} // namespace render

#include "pictures.hpp"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace render {

Node holder(const Rect &frame) {
    Node node;
    node.transform.tx = frame.x;
    node.transform.ty = frame.y;
    node.bounds = {0, 0, frame.width, frame.height};
    return node;
}

Node box(const Rect &frame, const Rgba &color) {
    Node node = holder(frame);
    node.background = Paint(color);
    return node;
}

Node with(Node parent, std::vector<Node> children) {
    for (Node &child : children) parent.children.push_back(std::move(child));
    return parent;
}

Node drawn(const Rect &frame, Drawing drawing) {
    Node node = holder(frame);
    node.drawings.push_back(std::move(drawing));
    return node;
}

TextRun line(const std::string &text, const Rect &box, TextStyle style, Rgba color) {
    TextRun run;
    run.text = text;
    run.style = style;
    run.color = color;
    run.box = box;
    return run;
}

Scene screen(double width, double height, std::vector<Node> roots, double scale) {
    Scene scene;
    scene.size = {width, height};
    scene.scale = scale;
    scene.roots = std::move(roots);
    return scene;
}

Bitmap draw(const Scene &scene) { return Renderer().draw(scene); }

uint32_t pixel(const Bitmap &bitmap, int x, int y) {
    return bitmap.pixels.at(static_cast<size_t>(y) * bitmap.width + x);
}

std::string hex(uint32_t pixel) {
    char text[9];
    std::snprintf(text, sizeof text, "%08x", pixel);
    return text;
}

int difference(uint32_t one, uint32_t other) {
    int most = 0;
    for (int shift = 0; shift < 32; shift += 8)
        most = std::max(
            most, std::abs(static_cast<int>(one >> shift & 0xff) - static_cast<int>(other >> shift & 0xff)));
    return most;
}

PixelRect inkOf(const Bitmap &bitmap, uint32_t color) {
    int left = bitmap.width, top = bitmap.height, right = 0, bottom = 0;
    for (int y = 0; y < bitmap.height; y++)
        for (int x = 0; x < bitmap.width; x++) {
            if (pixel(bitmap, x, y) == color) continue;
            left = std::min(left, x), right = std::max(right, x + 1);
            top = std::min(top, y), bottom = std::max(bottom, y + 1);
        }
    if (right <= left) return {};
    return {left, top, right - left, bottom - top};
}

BitmapRef pixelArt(std::initializer_list<const char *> rows, double scale) {
    int width = static_cast<int>(std::strlen(*rows.begin())), height = static_cast<int>(rows.size());
    auto bitmap = std::make_shared<Bitmap>(width, height, scale);
    uint32_t *to = bitmap->pixels.data();
    for (const char *row : rows)
        for (const char *c = row; *c; c++) {
            switch (*c) {
            case 'r':
                *to++ = 0xffff0000;
                break;
            case 'g':
                *to++ = 0xff00ff00;
                break;
            case 'b':
                *to++ = 0xff0000ff;
                break;
            case 'w':
                *to++ = 0xffffffff;
                break;
            case 'k':
                *to++ = 0xff000000;
                break;
            default:
                *to++ = 0;
                break;
            }
        }
    return bitmap;
}

} // namespace render

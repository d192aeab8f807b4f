// Copying and stretching bitmaps pixel by pixel, outside of any scene.
#include "Render/Basics/Transforms.hpp"
#include "Render/Renderer.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace render {

namespace {

using Channels = std::array<double, 4>; // blue, green, red, alpha; premultiplied, 0 to 255

struct Weight {
    int index;
    double amount; // of one pixel's weights, which add up to 1
};

// How one row or column of the target is put together.
struct Blend {
    double coverage = 0; // how much of the target's pixel is painted
    std::vector<Weight> weights;
};

// Shrinking: everything between two places of the source counts for as much as lies between them.
std::vector<Weight> averageBetween(double from, double to, int count) {
    std::vector<Weight> weights;
    int last = std::min(count - 1, static_cast<int>(std::ceil(to)) - 1);
    for (int i = std::max(0, static_cast<int>(std::floor(from))); i <= last; i++) {
        double amount = std::min(to, i + 1.0) - std::max(from, static_cast<double>(i));
        if (amount > 0) weights.push_back({i, amount / (to - from)});
    }
    return weights;
}

// Enlarging: between the middles of the two nearest pixels.
std::vector<Weight> between(double place, int count) {
    double left = std::floor(place - 0.5);
    double rest = place - 0.5 - left;
    auto inside = [count](double i) { return static_cast<int>(std::clamp(i, 0.0, count - 1.0)); };
    return {{inside(left), 1 - rest}, {inside(left + 1), rest}};
}

// The target's pixel `index`, where `count` source pixels fill the stretch from `start` over `length`.
Blend blendFor(int index, double start, double length, int count) {
    double low = std::max<double>(index, start), high = std::min(index + 1.0, start + length);
    if (high <= low) return {};
    double step = count / length;
    double from = (low - start) * step, to = (high - start) * step;
    return {high - low, step > 1 ? averageBetween(from, to, count) : between((from + to) / 2, count)};
}

std::vector<Blend> blends(int from, int length, double start, double stretch, int count) {
    std::vector<Blend> all;
    for (int i = from; i < from + length; i++) all.push_back(blendFor(i, start, stretch, count));
    return all;
}

void add(Channels &sum, uint32_t pixel, double amount) {
    for (int c = 0; c < 4; c++) sum[c] += amount * (pixel >> (8 * c) & 0xff);
}

Channels mix(const Bitmap &source, const Blend &row, const Blend &column) {
    Channels sum = {};
    for (const Weight &y : row.weights)
        for (const Weight &x : column.weights)
            add(sum, source.pixels[static_cast<size_t>(y.index) * source.width + x.index],
                x.amount * y.amount);
    return sum;
}

// `paint` onto `under`: over it, or in its place.
uint32_t composite(uint32_t under, const Channels &paint, double coverage, double alpha, bool replace) {
    double hidden = replace ? coverage : coverage * alpha * paint[3] / 255;
    uint32_t result = 0;
    for (int c = 0; c < 4; c++) {
        double value = paint[c] * alpha * coverage + (under >> (8 * c) & 0xff) * (1 - hidden);
        result |= static_cast<uint32_t>(std::clamp(value + 0.5, 0.0, 255.0)) << (8 * c);
    }
    return result;
}

} // namespace

void place(Bitmap &target, const Bitmap &source, int x, int y) {
    PixelRect part =
        intersect(PixelRect{0, 0, target.width, target.height}, PixelRect{x, y, source.width, source.height});
    for (int row = part.y; row < part.y + part.height; row++) {
        auto from =
            source.pixels.begin() + static_cast<std::ptrdiff_t>(row - y) * source.width + (part.x - x);
        std::copy_n(from, part.width,
                    target.pixels.begin() + static_cast<std::ptrdiff_t>(row) * target.width + part.x);
    }
}

void drawBitmap(Bitmap &target, const Bitmap &source, const Rect &rect, bool replace, double alpha) {
    Rect pixels = apply(scaling(target.scale), rect);
    PixelRect part = intersect(PixelRect{0, 0, target.width, target.height}, roundOut(pixels));
    if (part.empty() || source.width <= 0 || source.height <= 0) return;
    auto rows = blends(part.y, part.height, pixels.y, pixels.height, source.height);
    auto columns = blends(part.x, part.width, pixels.x, pixels.width, source.width);
    double opacity = std::clamp(alpha, 0.0, 1.0);
    for (int y = 0; y < part.height; y++) {
        uint32_t *line = target.pixels.data() + static_cast<size_t>(part.y + y) * target.width + part.x;
        for (int x = 0; x < part.width; x++) {
            Channels paint = mix(source, rows[y], columns[x]);
            line[x] = composite(line[x], paint, rows[y].coverage * columns[x].coverage, opacity, replace);
        }
    }
}

} // namespace render

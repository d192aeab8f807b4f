#include "Material.hpp"

#include <algorithm>

namespace render {

namespace {

constexpr float kOne = 255 * 256; // a full channel
enum Channel { blue, green, red, alpha };

using Colors = float[4];

void saturate(Colors &color, double saturation) {
    // The eye's sense of brightness, as broadcasting defines it (inferred that the platform's does the same).
    float gray = 0.0722f * color[blue] + 0.7152f * color[green] + 0.2126f * color[red];
    for (Channel c : {blue, green, red}) color[c] = gray + (color[c] - gray) * static_cast<float>(saturation);
}

void paintOver(Colors &color, const Rgba &paint) {
    auto keep = static_cast<float>(1 - paint.alpha);
    const double parts[] = {paint.blue, paint.green, paint.red, 1};
    for (Channel c : {blue, green, red, alpha})
        color[c] = color[c] * keep + static_cast<float>(parts[c] * paint.alpha) * kOne;
}

// The average of `columns` × `rows` pixels from `from` on. In line, so that for known numbers it is unrolled
// and divides without a division.
[[gnu::always_inline]] inline uint32_t averageInline(const uint32_t *from, int width, int columns, int rows) {
    constexpr uint32_t kEven = 0x00ff00ff;
    uint32_t low = 0, high = 0; // two channels each; 64 pixels add up without overflow
    for (int row = 0; row < rows; row++, from += width) {
        for (int column = 0; column < columns; column++) {
            low += from[column] & kEven;
            high += from[column] >> 8 & kEven;
        }
    }
    auto count = static_cast<uint32_t>(columns * rows);
    auto mean = [count](uint32_t sum) { return (sum + count / 2) / count; };
    return mean(low & 0xffff) | mean(high & 0xffff) << 8 | mean(low >> 16) << 16 | mean(high >> 16) << 24;
}

uint32_t averageOf(const uint32_t *from, int width, int columns, int rows) {
    if (columns == 4 && rows == 4) return averageInline(from, width, 4, 4);
    if (columns == 6 && rows == 6) return averageInline(from, width, 6, 6);
    return averageInline(from, width, columns, rows);
}

} // namespace

int reductionFor(double blurRadius, double scale) {
    constexpr double kFinestSigma = 2; // cells; below it the cells would show
    double sigma = blurRadius * scale;
    if (!(sigma > 0)) return 1;
    for (int factor : {scale > 2 ? 6 : 4, 3, 2})
        if (sigma / factor >= kFinestSigma) return factor;
    return 1;
}

void reduce(const Bitmap &source, int factor, Bitmap &target, int x, int y) {
    for (int top = 0; top < source.height; top += factor) {
        int rows = std::min(factor, source.height - top);
        const uint32_t *from = source.pixels.data() + static_cast<size_t>(top) * source.width;
        uint32_t *to = target.pixels.data() + static_cast<size_t>(y + top / factor) * target.width + x;
        for (int left = 0; left < source.width; left += factor)
            *to++ = averageOf(from + left, source.width, std::min(factor, source.width - left), rows);
    }
}

Lanes unpack(uint32_t pixel) {
    auto channel = [pixel](int index) { return static_cast<int32_t>(pixel >> (8 * index) & 0xff) << 8; };
    return Lanes{channel(0), channel(1), channel(2), channel(3)};
}

uint32_t pack(Lanes cell) {
    uint32_t pixel = 0;
    for (int c = 0; c < 4; c++)
        pixel |= static_cast<uint32_t>(std::clamp((cell[c] + 128) >> 8, 0, 255)) << (8 * c);
    return pixel;
}

Lanes throughMaterial(Lanes cell, const Backdrop &style) {
    Colors color = {static_cast<float>(cell[0]), static_cast<float>(cell[1]), static_cast<float>(cell[2]),
                    static_cast<float>(cell[3])};
    if (style.saturation != 1) saturate(color, style.saturation);
    for (Channel c : {blue, green, red}) color[c] = std::clamp(color[c], 0.0f, color[alpha]);
    if (style.grayAlpha > 0)
        paintOver(color, {style.grayLevel, style.grayLevel, style.grayLevel, style.grayAlpha});
    if (style.tint) paintOver(color, *style.tint);
    return Lanes{static_cast<int32_t>(color[0]), static_cast<int32_t>(color[1]),
                 static_cast<int32_t>(color[2]), static_cast<int32_t>(color[3])};
}

} // namespace render

#include "Resize.hpp"

#include <algorithm>
#include <cmath>

namespace render {

namespace {

// Which source pixel each of `size` pixels shows, along one side of `count` pixels with caps at both ends.
std::vector<int> tiledSide(int count, double lowCap, double highCap, int size) {
    int low = std::clamp(static_cast<int>(std::lround(lowCap)), 0, count);
    int high = std::clamp(static_cast<int>(std::lround(highCap)), 0, count - low);
    int first = std::min(low, count - 1), middle = std::max(1, count - low - high);
    if (low + high > size) {
        low = size * low / (low + high);
        high = size - low;
    }
    std::vector<int> indexes(size);
    for (int i = 0; i < size; i++) {
        if (i < low)
            indexes[i] = i;
        else if (i >= size - high)
            indexes[i] = count - (size - i);
        else
            indexes[i] = first + (i - low) % middle;
    }
    return indexes;
}

// Each channel of the sum of four pixels stays apart from the others in two words.
uint32_t average(uint32_t a, uint32_t b, uint32_t c, uint32_t d) {
    constexpr uint32_t kEven = 0x00ff00ff, kRounding = 0x00020002;
    uint32_t low = (a & kEven) + (b & kEven) + (c & kEven) + (d & kEven) + kRounding;
    uint32_t high = (a >> 8 & kEven) + (b >> 8 & kEven) + (c >> 8 & kEven) + (d >> 8 & kEven) + kRounding;
    return (low >> 2 & kEven) | (high >> 2 & kEven) << 8;
}

} // namespace

Bitmap tiled(const Bitmap &source, const Insets &caps, int width, int height) {
    double scale = source.scale;
    auto columns = tiledSide(source.width, caps.left * scale, caps.right * scale, width);
    auto rows = tiledSide(source.height, caps.top * scale, caps.bottom * scale, height);
    Bitmap result(width, height, scale);
    uint32_t *to = result.pixels.data();
    for (int row : rows) {
        const uint32_t *from = source.pixels.data() + static_cast<size_t>(row) * source.width;
        for (int column : columns) *to++ = from[column];
    }
    return result;
}

Bitmap tinted(const Bitmap &source, const Rgba &tint) {
    auto channel = [](double value) {
        return static_cast<uint32_t>(std::lround(std::clamp(value, 0.0, 1.0) * 255));
    };
    uint32_t byAlpha[256];
    for (int alpha = 0; alpha < 256; alpha++) {
        double through = tint.alpha * alpha / 255;
        byAlpha[alpha] = channel(through) << 24 | channel(tint.red * through) << 16 |
                         channel(tint.green * through) << 8 | channel(tint.blue * through);
    }
    Bitmap result(source.width, source.height, source.scale);
    std::transform(source.pixels.begin(), source.pixels.end(), result.pixels.begin(),
                   [&](uint32_t pixel) { return byAlpha[pixel >> 24]; });
    return result;
}

Bitmap half(const Bitmap &source) {
    Bitmap result((source.width + 1) / 2, (source.height + 1) / 2, source.scale / 2);
    for (int y = 0; y < result.height; y++) {
        const uint32_t *upper = source.pixels.data() + static_cast<size_t>(2 * y) * source.width;
        const uint32_t *lower = 2 * y + 1 < source.height ? upper + source.width : upper;
        for (int x = 0; x < result.width; x++) {
            int left = 2 * x, right = std::min(left + 1, source.width - 1);
            result.pixels[static_cast<size_t>(y) * result.width + x] =
                average(upper[left], upper[right], lower[left], lower[right]);
        }
    }
    return result;
}

} // namespace render

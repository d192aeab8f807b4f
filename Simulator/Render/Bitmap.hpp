// Pixels in memory.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace render {

// Premultiplied; one 32-bit word a pixel, alpha in the top byte, then red, green, blue (so blue comes first
// in memory). Rows follow one another without gaps.
struct Bitmap {
    int width = 0;
    int height = 0;
    double scale = 1; // pixels a point
    std::vector<uint32_t> pixels;

    Bitmap() = default;
    Bitmap(int width, int height, double scale = 1)
        : width(width), height(height), scale(scale), pixels(static_cast<size_t>(width) * height) {}
    bool operator==(const Bitmap &) const = default;
};

// Shared and unchanging; two references to equal pixels are equal only when they are the same bitmap.
using BitmapRef = std::shared_ptr<const Bitmap>;

// nullptr when the bytes are no PNG (or the file cannot be read).
BitmapRef decodePng(std::string_view bytes, double scale);
// The bytes of a PNG file; the same pixels always give the same bytes.
std::string encodePng(const Bitmap &bitmap);
// The bytes of an animated PNG that shows the frames, all of one size, for so many seconds each, again and
// again. Transparency is dropped. Throws std::invalid_argument for frames of several sizes.
std::string encodeAnimation(const std::vector<Bitmap> &frames, double seconds);
// An SVG drawing fitted into width × height pixels; nullptr when it cannot be read. Text in it is set in the
// regular face, whatever face it asks for; throws std::runtime_error when the fonts are not installed.
BitmapRef drawSvg(std::string_view source, int width, int height, double scale);

} // namespace render

// Animated PNG: the frames' own image data, in the chunks by which viewers show one after another. Who knows
// none of them shows the first frame.
#include "Render/Bitmap.hpp"
#include "Render/Pictures/Chunks.hpp"

#include <cmath>
#include <stdexcept>

namespace render {

namespace {

constexpr size_t kLength = 4, kType = 4, kChecksum = 4;

uint32_t numberAt(const std::string &bytes, size_t at) {
    uint32_t number = 0;
    for (size_t i = 0; i < 4; ++i) number = number << 8 | static_cast<unsigned char>(bytes.at(at + i));
    return number;
}

// The header of a PNG and all its image data.
struct Parts {
    std::string header, data;
};

Parts partsOf(const std::string &png) {
    Parts parts;
    for (size_t at = kPngSignature.size(); at < png.size();) {
        size_t length = numberAt(png, at);
        std::string type = png.substr(at + kLength, kType), data = png.substr(at + kLength + kType, length);
        if (type == "IHDR") parts.header = data;
        if (type == "IDAT") parts.data += data;
        at += kLength + kType + length + kChecksum;
    }
    return parts;
}

// Frames share one header, so none may have a transparency that another lacks.
std::string opaquePng(Bitmap frame) {
    for (auto &pixel : frame.pixels) pixel |= 0xff000000u;
    return encodePng(frame);
}

std::string frameControl(uint32_t number, const Bitmap &frame, double seconds) {
    auto thousandths = static_cast<uint32_t>(std::lround(seconds * 1000));
    return chunk("fcTL", bigEndian(number) + bigEndian(static_cast<uint32_t>(frame.width)) +
                             bigEndian(static_cast<uint32_t>(frame.height)) + bigEndian(0) + bigEndian(0) +
                             bigEndian(thousandths, 2) + bigEndian(1000, 2) + std::string(2, '\0'));
}

} // namespace

std::string encodeAnimation(const std::vector<Bitmap> &frames, double seconds) {
    std::string result;
    uint32_t number = 0;
    for (const auto &frame : frames) {
        if (frame.width != frames[0].width || frame.height != frames[0].height)
            throw std::invalid_argument("the frames of an animation are of one size");
        std::string png = opaquePng(frame);
        Parts parts = partsOf(png);
        bool first = &frame == &frames[0];
        if (first)
            result = std::string(kPngSignature) + chunk("IHDR", parts.header) +
                     chunk("acTL", bigEndian(static_cast<uint32_t>(frames.size())) + bigEndian(0));
        result += frameControl(number++, frame, seconds);
        result += first ? chunk("IDAT", parts.data) : chunk("fdAT", bigEndian(number++) + parts.data);
    }
    return result + chunk("IEND", "");
}

} // namespace render

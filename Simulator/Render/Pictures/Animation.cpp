// Animated PNG: the frames' own image data, in the chunks by which viewers show one after another. Who knows
// none of them shows the first frame.
#include "Render/Bitmap.hpp"

#include <array>
#include <cmath>
#include <stdexcept>

namespace render {

namespace {

constexpr size_t kSignature = 8, kLength = 4, kType = 4, kChecksum = 4;

std::string bigEndian(uint32_t number, int bytes = 4) {
    std::string result;
    for (int i = bytes; i-- > 0;) result += static_cast<char>(number >> (8 * i));
    return result;
}

// CRC-32 as PNG defines it.
uint32_t checksum(std::string_view bytes) {
    static const auto table = [] {
        std::array<uint32_t, 256> result{};
        for (uint32_t i = 0; i < result.size(); ++i) {
            uint32_t value = i;
            for (int bit = 0; bit < 8; ++bit) value = value & 1 ? 0xedb88320u ^ (value >> 1) : value >> 1;
            result[i] = value;
        }
        return result;
    }();
    uint32_t sum = 0xffffffffu;
    for (char byte : bytes) sum = table[(sum ^ static_cast<unsigned char>(byte)) & 0xff] ^ (sum >> 8);
    return ~sum;
}

std::string chunk(const std::string &type, const std::string &data) {
    return bigEndian(static_cast<uint32_t>(data.size())) + type + data + bigEndian(checksum(type + data));
}

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
    for (size_t at = kSignature; at < png.size();) {
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
            result = png.substr(0, kSignature) + chunk("IHDR", parts.header) +
                     chunk("acTL", bigEndian(static_cast<uint32_t>(frames.size())) + bigEndian(0));
        result += frameControl(number++, frame, seconds);
        result += first ? chunk("IDAT", parts.data) : chunk("fdAT", bigEndian(number++) + parts.data);
    }
    return result + chunk("IEND", "");
}

} // namespace render

#include "png.hpp"

namespace render {

namespace {

std::string number(uint32_t value) {
    std::string bytes;
    for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(value >> shift & 0xff);
    return bytes;
}

uint32_t crc(const std::string &bytes) {
    uint32_t value = 0xffffffff;
    for (unsigned char byte : bytes) {
        value ^= byte;
        for (int bit = 0; bit < 8; bit++) value = value & 1 ? value >> 1 ^ 0xedb88320 : value >> 1;
    }
    return ~value;
}

uint32_t adler(const std::string &bytes) {
    uint32_t low = 1, high = 0;
    for (unsigned char byte : bytes) {
        low = (low + byte) % 65521;
        high = (high + low) % 65521;
    }
    return high << 16 | low;
}

std::string chunk(const std::string &name, const std::string &content) {
    return number(static_cast<uint32_t>(content.size())) + name + content + number(crc(name + content));
}

// One block, not compressed.
std::string stored(const std::string &bytes) {
    auto length = static_cast<uint16_t>(bytes.size());
    std::string header = {'\x78', '\x01', '\x01'};
    for (uint16_t value : {length, static_cast<uint16_t>(~length)}) {
        header += static_cast<char>(value & 0xff);
        header += static_cast<char>(value >> 8);
    }
    return header + bytes + number(adler(bytes));
}

} // namespace

std::string handmadePng(int width, int height, int depth, PngColor color, const std::string &rows,
                        const std::string &palette, const std::string &transparency) {
    std::string header = number(width) + number(height) + static_cast<char>(depth) +
                         static_cast<char>(color) + std::string(3, '\0');
    size_t stride = rows.size() / height;
    std::string lines;
    for (int y = 0; y < height; y++) lines += '\0' + rows.substr(y * stride, stride);
    std::string file = "\x89PNG\r\n\x1a\n" + chunk("IHDR", header);
    if (!palette.empty()) file += chunk("PLTE", palette);
    if (!transparency.empty()) file += chunk("tRNS", transparency);
    return file + chunk("IDAT", stored(lines)) + chunk("IEND", "");
}

} // namespace render

#include "FrameParts.hpp"

#include <algorithm>
#include <bit>
#include <cstring>
#include <stdexcept>
#include <zlib.h>

namespace sim {

namespace {

static_assert(std::endian::native == std::endian::little);

constexpr size_t kWord = sizeof(uint32_t), kHead = 4; // words before the areas
constexpr uint32_t kPacked = 0x80000000;              // in the number of areas

// Premultiplied blue first to red first; screens are opaque.
uint32_t swapped(uint32_t pixel) {
    return (pixel & 0xff00ff00) | ((pixel >> 16) & 0xff) | ((pixel & 0xff) << 16);
}

char *put(char *to, uint32_t word) {
    std::memcpy(to, &word, sizeof word);
    return to + sizeof word;
}

char *putPixels(char *to, const render::Bitmap &screen, const PictureArea &area) {
    for (int y = area.y; y < area.y + area.height; ++y) {
        const uint32_t *row = &screen.pixels[static_cast<size_t>(y) * static_cast<size_t>(screen.width) +
                                             static_cast<size_t>(area.x)];
        for (int x = 0; x < area.width; ++x) to = put(to, swapped(row[x]));
    }
    return to;
}

} // namespace

void UnseenParts::reset(int width, int height) {
    width_ = width;
    height_ = height;
    columns_ = (width + kSide - 1) / kSide;
    rows_ = (height + kSide - 1) / kSide;
    squares_.assign(static_cast<size_t>(columns_ * rows_), true);
    count_ = columns_ * rows_;
}

void UnseenParts::add(const PictureArea &area) {
    if (area.width <= 0 || area.height <= 0) return;
    int right = std::min(columns_ - 1, (area.x + area.width - 1) / kSide);
    int bottom = std::min(rows_ - 1, (area.y + area.height - 1) / kSide);
    for (int row = area.y / kSide; row <= bottom; ++row) {
        for (int column = area.x / kSide; column <= right; ++column) {
            auto square = squares_[static_cast<size_t>(row * columns_ + column)];
            if (!square) ++count_;
            square = true;
        }
    }
}

std::vector<PictureArea> UnseenParts::take() {
    std::vector<PictureArea> areas;
    auto at = [&](int row, int column) { return squares_[static_cast<size_t>(row * columns_ + column)]; };
    for (int row = 0; row < rows_; ++row) {
        for (int column = 0; column < columns_; ++column) {
            if (!at(row, column)) continue;
            int end = column;
            while (end < columns_ && at(row, end)) ++end;
            int x = column * kSide, y = row * kSide;
            areas.push_back({x, y, std::min(end * kSide, width_) - x, std::min(y + kSide, height_) - y});
            column = end;
        }
    }
    squares_.assign(squares_.size(), false);
    count_ = 0;
    return areas;
}

std::string encodeFrame(const render::Bitmap &screen, const std::vector<PictureArea> &areas,
                        uint32_t number) {
    constexpr size_t kAreaHead = 4;
    size_t words = kHead;
    for (const auto &area : areas)
        words += kAreaHead + static_cast<size_t>(area.width) * static_cast<size_t>(area.height);
    std::string frame(words * kWord, '\0');
    char *to = frame.data();
    for (uint32_t word : {number, static_cast<uint32_t>(screen.width), static_cast<uint32_t>(screen.height),
                          static_cast<uint32_t>(areas.size())})
        to = put(to, word);
    for (const auto &area : areas)
        for (int word : {area.x, area.y, area.width, area.height}) to = put(to, static_cast<uint32_t>(word));
    for (const auto &area : areas) to = putPixels(to, screen, area);
    return frame;
}

std::string packFrame(const std::string &frame) {
    // A sixth less than the quickest one gives; more takes several times as long.
    constexpr int kLevel = 4, kRaw = -15, kMemory = 9;
    z_stream stream{};
    if (deflateInit2(&stream, kLevel, Z_DEFLATED, kRaw, kMemory, Z_DEFAULT_STRATEGY) != Z_OK)
        throw std::runtime_error("no memory to pack a frame");
    constexpr size_t head = kHead * kWord;
    size_t rest = frame.size() - head;
    std::string packed(head + deflateBound(&stream, rest), '\0');
    std::memcpy(packed.data(), frame.data(), head);
    uint32_t count = 0;
    std::memcpy(&count, frame.data() + head - kWord, kWord);
    put(packed.data() + head - kWord, count | kPacked);
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(frame.data() + head));
    stream.avail_in = static_cast<uInt>(rest);
    stream.next_out = reinterpret_cast<Bytef *>(packed.data() + head);
    stream.avail_out = static_cast<uInt>(packed.size() - head);
    deflate(&stream, Z_FINISH);
    packed.resize(head + stream.total_out);
    deflateEnd(&stream);
    return packed;
}

} // namespace sim

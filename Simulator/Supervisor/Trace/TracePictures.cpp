#include "TracePictures.hpp"

#include "Render/Pictures/Resize.hpp"
#include "Runtime/Values/PropertyListScalars.hpp"

#include <algorithm>
#include <span>

namespace sim {

namespace {

constexpr size_t kWholes = 4;                             // that a part may lie on
constexpr size_t kFullScaleBytes = 6'000'000;             // of PNG
constexpr double kMostOfPixels = 0.6, kMostOfBytes = 0.6; // of a whole one; a part with more is none

uint64_t fingerprint(const render::Bitmap &picture) {
    uint64_t sum = 0xcbf29ce484222325; // FNV-1a, a pixel at a time
    for (uint32_t pixel : picture.pixels) sum = (sum ^ pixel) * 0x100000001b3;
    return sum;
}

struct Box {
    int left, top, right, bottom;
    int64_t area() const { return int64_t{right - left} * (bottom - top); }
};

std::span<const uint32_t> row(const render::Bitmap &picture, int y) {
    auto width = static_cast<size_t>(picture.width);
    return std::span(picture.pixels).subspan(static_cast<size_t>(y) * width, width);
}

// Of two pictures of one size, where they differ.
Box difference(const render::Bitmap &a, const render::Bitmap &b) {
    Box box{a.width, a.height, 0, 0};
    for (int y = 0; y < a.height; ++y) {
        auto one = row(a, y), other = row(b, y);
        auto [first, end] = std::ranges::mismatch(one, other);
        if (first == one.end()) continue;
        auto [last, start] = std::mismatch(one.rbegin(), one.rend(), other.rbegin());
        box.left = std::min(box.left, static_cast<int>(first - one.begin()));
        box.right = std::max(box.right, static_cast<int>(one.rend() - last));
        box.top = std::min(box.top, y);
        box.bottom = y + 1;
    }
    return box;
}

render::Bitmap cut(const render::Bitmap &picture, const Box &box) {
    render::Bitmap part(box.right - box.left, box.bottom - box.top, picture.scale);
    auto width = static_cast<size_t>(part.width);
    for (int y = 0; y < part.height; ++y)
        std::ranges::copy(row(picture, box.top + y).subspan(static_cast<size_t>(box.left), width),
                          part.pixels.begin() + static_cast<std::ptrdiff_t>(width) * y);
    return part;
}

} // namespace

size_t TracePictures::add(render::Bitmap picture) {
    if (bytes_ > kFullScaleBytes) picture = render::half(picture);
    auto [known, isNew] =
        known_.try_emplace({fingerprint(picture), picture.width, picture.height}, list_.size());
    if (isNew && !addPart(picture)) addWhole(picture);
    return known->second;
}

void TracePictures::append(Object entry, const std::string &png) {
    bytes_ += png.size();
    entry.emplace("png", encodeBase64(png));
    list_.push_back(std::move(entry));
}

size_t TracePictures::addWhole(const render::Bitmap &picture) {
    std::string png = render::encodePng(picture);
    if (wholes_.size() == kWholes) wholes_.erase(wholes_.begin());
    wholes_.push_back({list_.size(), picture, png.size()});
    append({{"width", picture.width}, {"height", picture.height}, {"scale", picture.scale}}, png);
    return list_.size() - 1;
}

bool TracePictures::addPart(const render::Bitmap &picture) {
    const Whole *best = nullptr;
    Box box{};
    for (const auto &whole : wholes_) {
        if (whole.picture.width != picture.width || whole.picture.height != picture.height) continue;
        Box other = difference(whole.picture, picture);
        if (!best || other.area() < box.area()) best = &whole, box = other;
    }
    if (!best || static_cast<double>(box.area()) > kMostOfPixels * static_cast<double>(picture.pixels.size()))
        return false;
    std::string png = render::encodePng(cut(picture, box));
    if (static_cast<double>(png.size()) > kMostOfBytes * static_cast<double>(best->bytes)) return false;
    append({{"on", best->place}, {"x", box.left}, {"y", box.top}}, png);
    return true;
}

} // namespace sim

#include "PictureComparison.hpp"

#include "Render/Renderer.hpp"

#include <algorithm>
#include <cstdlib>

namespace sim {

namespace {

constexpr uint32_t kDifferent = 0xffff00ff;
constexpr double kEachShown = 0.5; // seconds

int channel(uint32_t pixel, int shift) { return static_cast<int>(pixel >> shift & 0xff); }

int distance(uint32_t a, uint32_t b) {
    int result = 0;
    for (int shift : {0, 8, 16, 24})
        result = std::max(result, std::abs(channel(a, shift) - channel(b, shift)));
    return result;
}

// Light, so that what differs stands out.
uint32_t faint(uint32_t pixel) {
    int grey = (channel(pixel, 16) + channel(pixel, 8) * 2 + channel(pixel, 0)) / 4;
    auto light = static_cast<uint32_t>(192 + grey / 4);
    return 0xff000000u | light << 16 | light << 8 | light;
}

} // namespace

PictureDifference comparePictures(const render::Bitmap &reference, const render::Bitmap &picture,
                                  int tolerance) {
    PictureDifference result;
    result.map = render::Bitmap(picture.width, picture.height, picture.scale);
    for (size_t i = 0; i < picture.pixels.size(); ++i) {
        int difference = distance(reference.pixels[i], picture.pixels[i]);
        result.largest = std::max(result.largest, difference);
        bool differs = difference > tolerance;
        result.pixels += differs;
        result.map.pixels[i] = differs ? kDifferent : faint(picture.pixels[i]);
    }
    return result;
}

std::string blinkPicture(const render::Bitmap &reference, const render::Bitmap &picture) {
    int width = std::max(reference.width, picture.width), height = std::max(reference.height, picture.height);
    std::vector<render::Bitmap> frames;
    for (const auto *each : {&reference, &picture}) {
        frames.emplace_back(width, height, each->scale);
        render::place(frames.back(), *each, 0, 0);
    }
    return render::encodeAnimation(frames, kEachShown);
}

} // namespace sim

// The pictures of a trace are what was put in, however they are kept.
#include "Render/Renderer.hpp"
#include "Runtime/Values/PropertyListScalars.hpp"
#include "Supervisor/Trace/TracePictures.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

// Noise, which no compression makes small.
render::Bitmap noise(int width, int height, uint32_t seed) {
    render::Bitmap picture(width, height, 2);
    for (auto &pixel : picture.pixels) pixel = 0xff000000u | ((seed = seed * 1664525u + 1013904223u) >> 8);
    return picture;
}

render::Bitmap decoded(const sim::Value &entry) {
    return *render::decodePng(*sim::decodeBase64(entry["png"].string()), 2);
}

// As the page puts it together.
render::Bitmap shown(const sim::TracePictures &pictures, size_t place) {
    const sim::Value &entry = pictures.list()[place];
    if (!entry.has("on")) return decoded(entry);
    render::Bitmap picture = decoded(pictures.list()[static_cast<size_t>(entry["on"].integer())]);
    render::place(picture, decoded(entry), static_cast<int>(entry["x"].integer()),
                  static_cast<int>(entry["y"].integer()));
    return picture;
}

TEST(TracePictures, AreWhatWasPutIn) {
    sim::TracePictures pictures;
    render::Bitmap first = noise(200, 300, 1), corner = first, edges = first, other = noise(300, 200, 2);
    corner.pixels.back() ^= 0xff;
    edges.pixels.front() ^= 0xff, edges.pixels.back() ^= 0xff;
    const render::Bitmap all[] = {first, corner, other, edges, first, noise(200, 300, 3), corner};
    std::vector<size_t> places;
    for (const auto &picture : all) {
        places.push_back(pictures.add(picture));
        EXPECT_EQ(shown(pictures, places.back()), picture);
    }
    EXPECT_EQ(places, (std::vector<size_t>{0, 1, 2, 3, 0, 4, 1})) << "each once";
    size_t whole = pictures.list()[0]["png"].string().size();
    EXPECT_LT(pictures.list()[1]["png"].string().size(), whole / 50) << "a small change is small";
    for (size_t place : {2, 3, 4}) EXPECT_FALSE(pictures.list()[place].has("on")) << place;
}

TEST(TracePictures, ALongTraceGoesOnInHalfTheScale) {
    sim::TracePictures pictures;
    size_t bytes = 0;
    for (uint32_t seed = 0; seed < 12; ++seed) {
        size_t place = pictures.add(noise(700, 500, seed));
        const sim::Value &entry = pictures.list()[place];
        bool late = bytes > 6'000'000 * 4 / 3;
        EXPECT_EQ(entry["width"], sim::Value(late ? 350 : 700)) << seed;
        EXPECT_EQ(entry["scale"], sim::Value(late ? 1.0 : 2.0)) << seed;
        bytes += entry["png"].string().size();
    }
    EXPECT_LT(bytes, 12e6);
}

} // namespace

// Film strips, and pictures on their way between processes.
#include "Supervisor/Machine/FilmStrip.hpp"
#include "Supervisor/Protocol/PictureMemory.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <stdexcept>

namespace {

render::Bitmap plain(uint32_t color, int width, int height, double scale) {
    render::Bitmap picture(width, height, scale);
    std::ranges::fill(picture.pixels, color);
    return picture;
}

TEST(FilmStrip, FramesStandInARowWithGaps) {
    constexpr uint32_t red = 0xffff0000, blue = 0xff0000ff;
    for (double scale : {1.0, 2.0, 3.0}) {
        int gap = static_cast<int>(8 * scale);
        auto strip =
            sim::filmStrip({plain(red, 10, 5, scale), plain(blue, 10, 5, scale), plain(red, 10, 5, scale)});
        ASSERT_EQ(strip.width, 3 * 10 + 2 * gap);
        ASSERT_EQ(strip.height, 5);
        EXPECT_EQ(strip.scale, scale);
        for (int y : {0, 4}) {
            auto at = [&](int x) { return strip.pixels[static_cast<size_t>(y * strip.width + x)]; };
            EXPECT_EQ(at(9), red);
            EXPECT_NE(at(10), red);
            EXPECT_NE(at(10 + gap - 1), blue);
            EXPECT_EQ(at(10 + gap), blue);
            EXPECT_EQ(at(strip.width - 1), red);
        }
    }
    EXPECT_EQ(sim::filmStrip({plain(red, 7, 3, 2)}), plain(red, 7, 3, 2))
        << "one frame is the picture itself";
}

TEST(PictureMemory, TheLastPictureIsRead) {
    FILE *file = std::tmpfile();
    ASSERT_TRUE(file);
    EXPECT_THROW(sim::readPicture(fileno(file)), std::runtime_error) << "before any is written";
    auto large = plain(0x80402010, 40, 30, 3), small = plain(0xff123456, 3, 2, 1);
    for (const auto &picture : {large, small}) {
        sim::writePicture(fileno(file), picture);
        EXPECT_EQ(sim::readPicture(fileno(file)), picture);
    }
    fclose(file);
}

} // namespace

// Bitmaps come in from files, go out to files, are copied and stretched without losing a pixel's worth. A
// regression shows as dark fringes on icons, wrong average colours or pictures that no longer open.
#include "pictures.hpp"
#include "png.hpp"

#include <random>

namespace render {

namespace {

using std::string_literals::operator""s;

} // namespace

TEST(Png, OfEveryKindIsRead) {
    struct {
        const char *name;
        std::string file;
        std::vector<std::string> pixels;
    } cases[] = {
        {"grey", handmadePng(2, 1, 8, PngColor::gray, "\x00\x80"s), {"ff000000", "ff808080"}},
        {"grey of one bit", handmadePng(2, 1, 1, PngColor::gray, "\x40"s), {"ff000000", "ffffffff"}},
        {"grey of 16 bits", handmadePng(1, 1, 16, PngColor::gray, "\x80\x00"s), {"ff808080"}},
        {"grey with alpha", handmadePng(1, 1, 8, PngColor::grayAlpha, "\xff\x80"s), {"80808080"}},
        {"colour",
         handmadePng(2, 1, 8, PngColor::rgb, "\xff\x00\x00\x01\x02\x03"s),
         {"ffff0000", "ff010203"}},
        {"colour of 16 bits",
         handmadePng(1, 1, 16, PngColor::rgb, "\xff\xff\x80\x00\x00\x00"s),
         {"ffff8000"}},
        {"colour with alpha",
         handmadePng(2, 1, 8, PngColor::rgba, "\xff\x80\x00\x80\xff\xff\xff\x00"s),
         {"80804000", "00000000"}},
        {"colour with alpha of 16 bits",
         handmadePng(1, 1, 16, PngColor::rgba, "\xff\xff\x00\x00\x00\x00\x80\x00"s),
         {"80800000"}},
        {"palette",
         handmadePng(2, 1, 8, PngColor::palette, "\x01\x00"s, "\xff\x00\x00\x00\xff\x00"s),
         {"ff00ff00", "ffff0000"}},
        {"palette with alpha",
         handmadePng(2, 1, 8, PngColor::palette, "\x00\x01"s, "\xff\x00\x00\x00\xff\x00"s, "\x80"s),
         {"80800000", "ff00ff00"}},
    };
    for (const auto &item : cases) {
        BitmapRef bitmap = decodePng(item.file, 2);
        ASSERT_TRUE(bitmap) << item.name;
        EXPECT_EQ(bitmap->scale, 2);
        std::vector<std::string> pixels;
        for (uint32_t pixel : bitmap->pixels) pixels.push_back(hex(pixel));
        EXPECT_EQ(pixels, item.pixels) << item.name;
    }
}

TEST(Png, ThatIsNoneIsRefused) {
    std::string file = handmadePng(4, 4, 8, PngColor::rgb, std::string(48, 'x'));
    for (const std::string &bytes : {""s, "no picture"s, file.substr(0, 20), file.substr(0, file.size() / 2)})
        EXPECT_FALSE(decodePng(bytes, 1));
    ASSERT_TRUE(decodePng(file, 1));
    file[file.size() / 2] ^= 0x55;
    EXPECT_FALSE(decodePng(file, 1)) << "a broken checksum";
}

TEST(Png, GoesOutAndComesBack) {
    for (bool opaque : {true, false}) {
        Bitmap bitmap(37, 19);
        std::mt19937 random(7);
        for (uint32_t &pixel : bitmap.pixels) {
            uint32_t alpha = opaque ? 255 : random() % 256, value = 0;
            for (int shift : {0, 8, 16}) value |= random() % (alpha + 1) << shift;
            pixel = alpha << 24 | value;
        }
        std::string file = encodePng(bitmap);
        EXPECT_EQ(file, encodePng(bitmap));
        BitmapRef back = decodePng(file, 1);
        ASSERT_TRUE(back);
        ASSERT_EQ(back->pixels.size(), bitmap.pixels.size());
        for (size_t i = 0; i < bitmap.pixels.size(); i++)
            EXPECT_LE(difference(back->pixels[i], bitmap.pixels[i]), opaque ? 0 : 1) << i;
        EXPECT_EQ(encodePng(*back), encodePng(*decodePng(encodePng(*back), 1))) << "and stays as it is";
    }
}

TEST(Svg, IsFittedIntoItsPixels) {
    const char *square = "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 10 10'>"
                         "<rect width='10' height='10' fill='#f00'/></svg>";
    BitmapRef bitmap = drawSvg(square, 40, 20, 2);
    ASSERT_TRUE(bitmap);
    EXPECT_EQ(inkOf(*bitmap, 0), (PixelRect{10, 0, 20, 20})) << "in the middle, its shape kept";
    EXPECT_EQ(hex(pixel(*bitmap, 20, 10)), "ffff0000");
    EXPECT_EQ(bitmap->scale, 2);
    for (const char *source : {"", "no drawing", "<svg", "<html/>"})
        EXPECT_FALSE(drawSvg(source, 4, 4, 1)) << source;
    EXPECT_FALSE(drawSvg(square, 0, 4, 1));
}

TEST(Place, CopiesWhatFits) {
    BitmapRef art = pixelArt({"rg", "bw"});
    struct {
        int x, y;
        PixelRect ink;
    } cases[] = {
        {1, 1, {1, 1, 2, 2}}, {-1, 3, {0, 3, 1, 1}}, {3, -1, {3, 0, 1, 1}}, {9, 0, {}}, {-5, -5, {}}};
    for (const auto &item : cases) {
        Bitmap target(4, 4);
        place(target, *art, item.x, item.y);
        EXPECT_EQ(inkOf(target, 0), item.ink) << item.x << ", " << item.y;
    }
    Bitmap target(2, 2);
    place(target, *art, 0, 0);
    EXPECT_EQ(target.pixels, art->pixels);
}

TEST(DrawBitmap, AveragesAllPixelsIntoOne) {
    Bitmap source(7, 5);
    uint32_t sum = 0;
    for (uint32_t i = 0; i < 35; i++) {
        source.pixels[i] = 0xff000000 | i * 7;
        sum += i * 7;
    }
    Bitmap target(1, 1);
    drawBitmap(target, source, {0, 0, 1, 1}, true, 1);
    EXPECT_EQ(hex(target.pixels[0]), hex(0xff000000 | (sum + 17) / 35));
}

TEST(DrawBitmap, AveragesWithAlphaAsItShows) {
    Bitmap target(1, 1);
    drawBitmap(target, *pixelArt({"r."}), {0, 0, 1, 1}, true, 1);
    EXPECT_EQ(hex(target.pixels[0]), "80800000");
}

TEST(DrawBitmap, ReplacesOrPaintsOver) {
    struct {
        const char *name;
        bool replace;
        double alpha;
        const char *color;
    } cases[] = {
        {"copy", true, 1, "00000000"}, {"over", false, 1, "ff0000ff"}, {"half over", false, 0.5, "ff0000ff"}};
    for (const auto &item : cases) {
        Bitmap target = *pixelArt({"b"});
        drawBitmap(target, *pixelArt({"."}), {0, 0, 1, 1}, item.replace, item.alpha);
        EXPECT_EQ(hex(target.pixels[0]), item.color) << item.name;
    }
    Bitmap target = *pixelArt({"b"});
    drawBitmap(target, *pixelArt({"r"}), {0, 0, 1, 1}, false, 0.5);
    EXPECT_EQ(hex(target.pixels[0]), "ff800080");
}

TEST(DrawBitmap, GoesByTheTargetsPointsAndKeepsOffTheRest) {
    Bitmap target(8, 8, 2);
    drawBitmap(target, *pixelArt({"rg", "bw"}), {1, 1, 1, 1}, false, 1);
    EXPECT_EQ(inkOf(target, 0), (PixelRect{2, 2, 2, 2}));
    EXPECT_EQ(hex(pixel(target, 3, 2)), "ff00ff00");
    drawBitmap(target, *pixelArt({"r"}), {3.75, -4, 9, 8.5}, false, 1);
    EXPECT_EQ(hex(pixel(target, 7, 0)), "80800000") << "half a pixel of the picture";
    EXPECT_EQ(hex(pixel(target, 6, 0)), "00000000");
    EXPECT_EQ(hex(pixel(target, 7, 9 / 2 + 4 - 8 + 1)), "80800000");
}

TEST(DrawBitmap, EnlargesSmoothly) {
    Bitmap target(16, 1);
    drawBitmap(target, *pixelArt({"kw"}), {0, 0, 16, 1}, true, 1);
    for (int x = 1; x < 16; x++) EXPECT_GE(target.pixels[x], target.pixels[x - 1]);
    EXPECT_EQ(hex(target.pixels[0]), "ff000000");
    EXPECT_EQ(hex(target.pixels[15]), "ffffffff");
}

} // namespace render

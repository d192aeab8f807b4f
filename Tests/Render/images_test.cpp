// Images go where they belong: copied where pixels meet, stretched, with caps that keep their size, tinted
// through their alpha, turned. A regression shows as blurred icons, stretched button ends or a wrongly
// coloured template.
#include "pictures.hpp"

#include "Render/Pictures/Resize.hpp"

namespace render {

namespace {

constexpr Rect whole = {0, 0, 24, 24};

std::vector<std::string> rows(const Bitmap &bitmap, const PixelRect &part) {
    std::vector<std::string> result;
    for (int y = part.y; y < part.y + part.height; y++) {
        std::string row;
        for (int x = part.x; x < part.x + part.width; x++) {
            switch (pixel(bitmap, x, y)) {
            case 0xffff0000:
                row += 'r';
                break;
            case 0xff00ff00:
                row += 'g';
                break;
            case 0xff0000ff:
                row += 'b';
                break;
            case 0xffffffff:
                row += 'w';
                break;
            case 0xff000000:
                row += 'k';
                break;
            default:
                row += '?';
                break;
            }
        }
        result.push_back(row);
    }
    return result;
}

Image image(BitmapRef bitmap, Rect rect) { return {std::move(bitmap), rect, {}, {}}; }

struct Case {
    const char *name;
    Image image;
    Affine transform;
    double scale;
    PixelRect part;
    std::vector<std::string> rows;
};

void PrintTo(const Case &item, std::ostream *out) { *out << item.name; }

BitmapRef corners() { return pixelArt({"rgg", "bww", "bww"}); }

Image capped(Rect rect, Insets caps) {
    // Ends of one pixel, between them two that alternate.
    return {pixelArt({"rgbr", "wkgw", "rgbr"}), rect, caps, {}};
}

Image template_(const Rgba &tint) { return {pixelArt({"r.", ".w"}), {0, 0, 2, 2}, {}, tint}; }

const Case cases[] = {
    {"one to one", image(corners(), {0, 0, 3, 3}), {}, 1, {0, 0, 4, 4}, {"rggk", "bwwk", "bwwk", "kkkk"}},
    {"in its place",
     image(corners(), {2, 1, 3, 3}),
     {1, 0, 0, 1, 4, 5},
     1,
     {5, 5, 5, 5},
     {"kkkkk", "krggk", "kbwwk", "kbwwk", "kkkkk"}},
    {"a bitmap of the screen's scale",
     image(pixelArt({"rgg", "bww", "bww"}, 3), {0, 0, 1, 1}),
     {},
     3,
     {0, 0, 4, 4},
     {"rggk", "bwwk", "bwwk", "kkkk"}},
    {"a hair off a pixel is on it",
     image(corners(), {0, 0, 3, 3}),
     {1, 0, 0, 1, 4.01, 3.98},
     1,
     {4, 4, 3, 3},
     {"rgg", "bww", "bww"}},
    {"a quarter turn",
     image(corners(), {0, 0, 3, 3}),
     {0, 1, -1, 0, 3, 0},
     1,
     {0, 0, 4, 3},
     {"bbrk", "wwgk", "wwgk"}},
    {"mirrored", image(corners(), {0, 0, 3, 3}), {-1, 0, 0, 1, 3, 0}, 1, {0, 0, 3, 3}, {"ggr", "wwb", "wwb"}},
    {"caps keep their size, the middle is tiled",
     capped({0, 0, 8, 4}, {0, 1, 0, 1}),
     {},
     1,
     {0, 0, 8, 2},
     {"rgbgbgbr", "wkgkgkgw"}},
    {"caps above and below",
     capped({0, 0, 4, 6}, {1, 0, 1, 0}),
     {},
     1,
     {0, 0, 1, 6},
     {"r", "w", "w", "w", "w", "r"}},
    {"caps that do not fit are squeezed", capped({0, 0, 2, 3}, {0, 2, 0, 2}), {}, 1, {0, 0, 3, 1}, {"rrk"}},
    {"a tint paints through alpha", template_(green), {}, 1, {0, 0, 3, 2}, {"gkk", "kgk"}},
    {"no bitmap", image(nullptr, whole), {}, 1, {0, 0, 2, 1}, {"kk"}},
};

class Images : public testing::TestWithParam<Case> {};

} // namespace

TEST_P(Images, FallOnTheirPixels) {
    const Case &item = GetParam();
    Node node = drawn(whole, item.image);
    node.transform = item.transform;
    EXPECT_EQ(rows(draw(screen(24, 24, {node}, item.scale)), item.part), item.rows);
}

INSTANTIATE_TEST_SUITE_P(Render, Images, testing::ValuesIn(cases));

TEST(Tint, FadesWithTheAlphaOfBoth) {
    auto bitmap = std::make_shared<Bitmap>(1, 1);
    bitmap->pixels[0] = 0x80400000;
    Image image = {bitmap, {0, 0, 1, 1}, {}, Rgba{0, 0, 1, 0.5}};
    Bitmap drawing = draw(screen(1, 1, {drawn({0, 0, 1, 1}, image)}));
    EXPECT_LE(difference(pixel(drawing, 0, 0), 0xff000040), 1) << hex(pixel(drawing, 0, 0));
}

TEST(Stretching, BlendsAndKeepsTheEdgesSharp) {
    Bitmap bitmap = draw(screen(30, 10, {drawn({0, 0, 30, 10}, image(pixelArt({"kw"}), {10, 0, 10, 10}))}));
    int before = -1;
    for (int x = 10; x < 20; x++) {
        int level = pixel(bitmap, x, 5) & 0xff;
        EXPECT_GE(level, before);
        before = level;
    }
    EXPECT_EQ(before, 255);
    EXPECT_EQ(pixel(bitmap, 20, 5), 0xff000000);
}

TEST(Shrinking, CountsAllPixels) {
    // Fine stripes, which any skipping of pixels would turn black or white.
    auto stripes = std::make_shared<Bitmap>(64, 64);
    for (size_t i = 0; i < stripes->pixels.size(); i++) stripes->pixels[i] = i % 2 ? 0xffffffff : 0xff000000;
    for (double size : {16.0, 8.0, 4.0}) {
        Bitmap bitmap = draw(screen(20, 20, {drawn({0, 0, 20, 20}, image(stripes, {0, 0, size, size}))}));
        EXPECT_LE(difference(pixel(bitmap, 1, 1), 0xff808080), 2) << size;
    }
}

TEST(Shrinking, RoundsToTheNearestLevel) {
    Bitmap source(3, 2, 2);
    source.pixels = {0xff000000, 0xff010203, 0x80008000, 0xff010203, 0xff010203, 0x80008000};
    Bitmap halved = half(source);
    EXPECT_EQ(halved.width, 2);
    EXPECT_EQ(halved.height, 1);
    EXPECT_EQ(halved.scale, 1);
    EXPECT_EQ(hex(halved.pixels[0]), "ff010202");
    EXPECT_EQ(hex(halved.pixels[1]), "80008000") << "the last column stands for two";
}

} // namespace render

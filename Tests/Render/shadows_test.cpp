// Shadows and glows: where they fall, how they fade, what casts them and what hides them. A regression shows
// as a pulse without light, or as a card that floats without a shadow.
#include "pictures.hpp"

#include "Render/Drawing/Blur.hpp"

#include <cmath>

namespace render {

namespace {

int level(const Bitmap &bitmap, int x, int y) { return pixel(bitmap, x, y) & 0xff; }

Node casting(Node node, double radius, Size offset, std::optional<Path> path) {
    Shadow shadow;
    shadow.color = white;
    shadow.opacity = 1;
    shadow.radius = radius;
    shadow.offset = offset;
    shadow.path = std::move(path);
    node.shadow = shadow;
    return node;
}

Bitmap picture(const Node &node, double scale = 1) { return draw(screen(100, 100, {node}, scale)); }

const Rect middle = {40, 40, 20, 20};
const Path square = Path::rect({0, 0, 20, 20});

} // namespace

TEST(Glow, FadesEvenlyOnAllSides) {
    for (double scale : {1.0, 2.0, 3.0}) {
        Bitmap bitmap = picture(casting(holder(middle), 6, {}, square), scale);
        int last = static_cast<int>(100 * scale) - 1;
        int before = 256;
        for (int i = static_cast<int>(50 * scale); i <= last; i++) {
            int here = level(bitmap, i, static_cast<int>(50 * scale));
            EXPECT_LE(here, before);
            EXPECT_NEAR(here, level(bitmap, last - i, static_cast<int>(50 * scale)), 2) << "left and right";
            EXPECT_NEAR(here, level(bitmap, static_cast<int>(50 * scale), i), 2) << "across and down";
            before = here;
        }
        EXPECT_EQ(before, 0);
    }
}

TEST(Glow, IsAsWideAsAGaussianOfItsRadius) {
    // Beside a long straight edge the light is the gaussian's integral.
    Bitmap bitmap = picture(casting(holder({-200, -200, 250, 500}), 8, {}, Path::rect({0, 0, 250, 500})));
    for (int distance : {-16, -8, 0, 8, 16}) {
        double wanted = 255 * 0.5 * std::erfc((distance + 0.5) / 8 / std::sqrt(2));
        EXPECT_NEAR(level(bitmap, 50 + distance, 50), wanted, 5) << distance;
    }
}

TEST(Shadow, FallsWhereItsOffsetSays) {
    Bitmap bitmap = picture(casting(holder(middle), 0, {5, -10}, square));
    EXPECT_EQ(inkOf(bitmap), (PixelRect{45, 30, 20, 20}));
}

TEST(Shadow, FollowsWhatTheNodeShows) {
    Node disc = box(middle, red);
    disc.cornerRadius = 10;
    Node plain = holder(middle);
    Node parent = with(holder(middle), {box({30, 0, 10, 10}, red)});
    struct {
        const char *name;
        Node node;
        PixelRect ink; // of the shadow, which lies 40 points to the left
    } cases[] = {{"a view's bounds", box(middle, red), {0, 40, 20, 20}},
                 {"corners", disc, {0, 40, 20, 20}},
                 {"nothing", plain, {}},
                 {"children", parent, {30, 40, 10, 10}}};
    for (const auto &item : cases) {
        Bitmap bitmap = picture(casting(item.node, 0, {-40, 0}, std::nullopt));
        Bitmap alone = picture(item.node);
        Bitmap shadow(100, 100);
        for (size_t i = 0; i < shadow.pixels.size(); i++)
            shadow.pixels[i] = bitmap.pixels[i] == alone.pixels[i] ? 0xff000000 : bitmap.pixels[i];
        EXPECT_EQ(inkOf(shadow), item.ink) << item.name;
    }
    Bitmap round = picture(casting(disc, 0, {-40, 0}, std::nullopt));
    EXPECT_EQ(level(round, 1, 41), 0);
    EXPECT_EQ(level(round, 10, 50), 255);
}

TEST(Shadow, IsHidden) {
    Node clipping = casting(holder(middle), 5, {}, square);
    clipping.clips = true;
    Node faint = casting(holder(middle), 5, {}, square);
    faint.shadow->opacity = 0;
    Node clear = casting(holder(middle), 5, {}, square);
    clear.shadow->color.alpha = 0;
    EXPECT_EQ(level(picture(clipping), 35, 50), 0) << "outside of a view that clips";
    EXPECT_EQ(inkOf(picture(faint)), PixelRect{});
    EXPECT_EQ(inkOf(picture(clear)), PixelRect{});
}

TEST(Shadow, LiesBelowItsNodeAndFadesWithIt) {
    Node node = casting(box(middle, red), 5, {}, square);
    EXPECT_EQ(hex(pixel(picture(node), 50, 50)), "ffff0000");
    int full = level(picture(node), 37, 50);
    node.opacity = 0.5;
    EXPECT_NEAR(level(picture(node), 37, 50), full / 2, 2);
}

TEST(Blur, DependsOnlyOnWhatLiesWithinItsReach) {
    constexpr int side = 60;
    std::vector<int32_t> all(side * side);
    for (int i = 0; i < side * side; i++) all[i] = (i * 7919 % 256) << 8;
    BlurSteps steps = blurSteps(3);
    int first = 10, width = 40, edge = steps.reach();
    std::vector<int32_t> part;
    for (int y = first; y < first + width; y++)
        for (int x = first; x < first + width; x++) part.push_back(all[y * side + x]);
    blur(all, side, side, steps);
    blur(part, width, width, steps);
    ASSERT_LT(2 * edge, width);
    for (int y = edge; y < width - edge; y++)
        for (int x = edge; x < width - edge; x++)
            ASSERT_EQ(part[y * width + x], all[(y + first) * side + x + first]) << x << ", " << y;
}

TEST(Blur, SpreadsLikeTheGaussianItStandsFor) {
    for (double sigma : {2.0, 5.0, 10.0, 20.0}) {
        BlurSteps steps = blurSteps(sigma);
        double variance = 0; // of an even spread over 2 r + 1 cells
        for (int radius : steps.radii) variance += radius * (radius + 1) / 3.0;
        EXPECT_NEAR(std::sqrt(variance), sigma, 0.35) << sigma;
    }
}

} // namespace render

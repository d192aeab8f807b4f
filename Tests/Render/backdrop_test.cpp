// Translucent materials: what lies below shows blurred and coloured, inside of the view's bounds only, and
// what does not change is not blurred again. A regression shows as a panel that is sharp, flat, or costs
// every frame.
#include "pictures.hpp"

#include "Render/Frame/MaterialSource.hpp"

#include <cmath>

namespace render {

namespace {

Node material(const Rect &frame, const Backdrop &style) {
    Node node = holder(frame);
    node.backdrop = style;
    return node;
}

Backdrop blurred(double radius) {
    Backdrop style;
    style.blurRadius = radius;
    return style;
}

// Black on the left, white on the right.
Node halves() { return with(box({0, 0, 200, 200}, black), {box({100, 0, 100, 200}, white)}); }

int level(const Bitmap &bitmap, int x, int y) { return pixel(bitmap, x, y) & 0xff; }

} // namespace

TEST(Backdrop, BlursAnEdgeAsFarAsItsRadiusSays) {
    for (double scale : {1.0, 2.0, 3.0}) {
        Scene scene = screen(200, 200, {halves(), material({0, 50, 200, 100}, blurred(10))}, scale);
        Bitmap bitmap = draw(scene);
        auto at = [&](double x, double y) {
            return level(bitmap, static_cast<int>(x * scale), static_cast<int>(y * scale));
        };
        for (int distance : {-20, -10, 10, 20}) {
            double wanted = 255 * 0.5 * std::erfc(-distance / 10.0 / std::sqrt(2));
            EXPECT_NEAR(at(100 + distance, 100), wanted, 9) << distance << " at scale " << scale;
        }
        EXPECT_EQ(at(98, 20), 0) << "above the panel nothing is blurred";
        EXPECT_EQ(at(102, 20), 255);
        EXPECT_EQ(at(5, 100), 0);
        EXPECT_EQ(at(195, 100), 255);
    }
}

TEST(Backdrop, ColoursWhatIsBelow) {
    struct {
        const char *name;
        double saturation, gray, grayAlpha;
        std::optional<Rgba> tint;
        uint32_t color;
    } cases[] = {
        {"as it is", 1, 0, 0, std::nullopt, 0xff996633},
        {"no colour left", 0, 0, 0, std::nullopt, 0xff6d6d6d},
        {"more colour", 1.8, 0, 0, std::nullopt, 0xffbc6004},
        {"full colour first, then tint", 10, 0, 0, Rgba{0, 0, 0, 0.5}, 0xff801300},
        {"grey over it", 1, 1, 0.5, std::nullopt, 0xffccb299},
        {"tint over it", 1, 0, 0, Rgba{0, 0, 0, 0.73}, 0xff291c0e},
        {"grey first, then tint", 1, 1, 1, Rgba{0, 0, 1, 0.5}, 0xff8080ff},
    };
    for (const auto &item : cases) {
        Backdrop style = blurred(8);
        style.saturation = item.saturation;
        style.grayLevel = item.gray, style.grayAlpha = item.grayAlpha;
        style.tint = item.tint;
        Bitmap bitmap = draw(
            screen(40, 40, {box({0, 0, 40, 40}, {0.6, 0.4, 0.2, 1}), material({10, 10, 20, 20}, style)}));
        uint32_t seen = pixel(bitmap, 20, 20);
        EXPECT_LE(difference(seen, item.color), 2) << item.name << ": " << hex(seen);
        EXPECT_EQ(hex(pixel(bitmap, 5, 5)), "ff996633") << item.name << ", outside";
    }
}

TEST(Backdrop, KeepsToItsCornersAndFades) {
    Backdrop style = blurred(5);
    style.tint = red;
    Node panel = material({10, 10, 20, 20}, style);
    panel.clips = true;
    panel.cornerRadius = 10;
    Bitmap bitmap = draw(screen(40, 40, {box({0, 0, 40, 40}, white), panel}));
    EXPECT_EQ(hex(pixel(bitmap, 10, 10)), "ffffffff");
    EXPECT_EQ(hex(pixel(bitmap, 20, 20)), "ffff0000");
    panel.opacity = 0.5;
    bitmap = draw(screen(40, 40, {box({0, 0, 40, 40}, white), panel}));
    EXPECT_LE(difference(pixel(bitmap, 20, 20), 0xffff8080), 1);
}

TEST(Backdrop, SeesWhatIsBelowItAndNothingElse) {
    Backdrop clear; // neither blur nor colour: what is below shows as it is
    Node before = box({0, 0, 20, 20}, green), after = box({20, 0, 20, 20}, {0, 0, 1, 0.5});
    Node parent = with(box({0, 0, 40, 40}, red), {before, material({0, 0, 40, 40}, clear), after});
    parent.borderWidth = 2;
    parent.borderColor = {1, 1, 1, 0.5};
    Backdrop tinted;
    tinted.tint = Rgba{0, 0, 0, 0.5};
    Bitmap bitmap = draw(screen(40, 40, {parent, material({0, 0, 40, 40}, tinted)}));
    EXPECT_LE(difference(pixel(bitmap, 10, 10), 0xff008000), 1)
        << "the sibling below, darkened by the second";
    EXPECT_LE(difference(pixel(bitmap, 30, 10), 0xff400040), 1) << "the sibling above the first, once";
    EXPECT_LE(difference(pixel(bitmap, 10, 30), 0xff800000), 1) << "the parent";
    EXPECT_LE(difference(pixel(bitmap, 1, 30), 0xff804040), 1)
        << "its border, which lies above its children, once";
}

TEST(Backdrop, IsBlurredInScreenSpaceWhereverItsViewIsTurned) {
    Node upright = material({0, 0, 200, 200}, blurred(10));
    Node turned = upright;
    turned.transform = {0, 1, -1, 0, 200, 0};
    EXPECT_EQ(draw(screen(200, 200, {halves(), upright})), draw(screen(200, 200, {halves(), turned})));
}

TEST(Reducing, AveragesWholeSquaresAndWhatIsLeftAtTheEdge) {
    Bitmap source(6, 5), target(4, 4);
    for (uint32_t &pixel : source.pixels) pixel = 0xff000001;
    for (int i : {0, 1, 2, 3}) source.pixels[i] = 0xffff0005;
    source.pixels[4] = 0xff000002;
    reduce(source, 4, target, 1, 2);
    EXPECT_EQ(hex(pixel(target, 1, 2)), "ff400002") << "a quarter of 0xff, and of 5 and 1, rounded";
    EXPECT_EQ(hex(pixel(target, 2, 2)), "ff000001") << "eight pixels at the right edge";
    EXPECT_EQ(hex(pixel(target, 1, 3)), "ff000001") << "four at the lower edge";
    EXPECT_EQ(inkOf(target, 0), (PixelRect{1, 2, 2, 2}));
}

TEST(MaterialSource, WorksOnlyForWhatIsNew) {
    TileGrid grid(960, 960);
    MaterialSource source(grid, 2, blurred(20));
    Bitmap below(TileGrid::kSide, TileGrid::kSide);
    auto paint = [&](int) -> const Bitmap & { return below; };
    auto work = [&](const PixelRect &area) {
        MaterialSource::Work before = source.work();
        grid.forEach(area, [&](int tile) { source.tile(tile, area, paint); });
        return std::pair(source.work().painted - before.painted, source.work().blurred - before.blurred);
    };
    PixelRect panel = {300, 300, 200, 200}, cropped = {320, 320, 50, 50}, far = {800, 800, 20, 20};
    auto first = work(panel);
    EXPECT_GT(first.first, 0);
    EXPECT_LT(first.first, grid.count()) << "what the panel cannot show is not painted for it";
    EXPECT_EQ(first.second, 1);
    EXPECT_EQ(work(panel), std::pair(0, 0)) << "the same again";
    EXPECT_EQ(work(cropped), std::pair(0, 0)) << "a part of it";
    source.drop(far);
    EXPECT_EQ(work(panel), std::pair(0, 0)) << "a change too far away to show";
    source.drop({310, 310, 10, 10});
    EXPECT_EQ(work(panel), std::pair(1, 1)) << "a change below: one tile, one blur";
}

} // namespace render

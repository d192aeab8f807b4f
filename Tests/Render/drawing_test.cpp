// What a node shows, pixel by pixel: fills, corners, borders, clips, groups, masks, gradients, patterns and
// shapes on a screen of 40 × 40 points. A regression shows as a view of the wrong colour, shape or order.
#include "pictures.hpp"

#include <cmath>

namespace render {

namespace {

struct Probe {
    int x, y;
    uint32_t color;
};

struct Picture {
    const char *name;
    Node root;
    std::vector<Probe> probes;
    int tolerance = 0;
};

void PrintTo(const Picture &picture, std::ostream *out) { *out << picture.name; }

template <typename Change>
Node changed(Node node, const Change &change) {
    change(node);
    return node;
}

constexpr uint32_t none = 0xff000000, r = 0xffff0000, g = 0xff00ff00, b = 0xff0000ff, w = 0xffffffff;

Node rounded(Rect frame, double radius) {
    return changed(box(frame, red), [=](Node &n) { n.cornerRadius = radius; });
}

Node framed(double radius, double width) {
    return changed(rounded({10, 10, 20, 20}, radius), [=](Node &n) {
        n.borderWidth = width;
        n.borderColor = green;
    });
}

Node turned(double angle) {
    return changed(box({0, 0, 20, 4}, red), [=](Node &n) {
        n.transform = {std::cos(angle), std::sin(angle), -std::sin(angle), std::cos(angle), 20, 20};
    });
}

// Two overlapping boxes in one half-transparent parent.
Node fadedPair() {
    Node pair = with(holder({0, 0, 40, 40}), {box({5, 5, 20, 20}, red), box({15, 15, 20, 20}, green)});
    pair.opacity = 0.5;
    return pair;
}

Node clippingRound(double radius) {
    Node parent = with(rounded({10, 10, 20, 20}, radius), {box({-10, -10, 40, 40}, green)});
    parent.clips = true;
    return parent;
}

Node masked(Node mask) {
    Node node = box({0, 0, 40, 40}, red);
    node.mask = std::make_shared<Node>(std::move(mask));
    return node;
}

Node shaded(Point start, Point end) {
    Node node = holder({0, 0, 40, 40});
    node.gradient = Gradient{{red, blue}, {0.25, 0.75}, start, end};
    return node;
}

Node stroked(double start, double end) {
    Shape shape;
    shape.path = Path::rect({10, 10, 20, 20});
    shape.stroke = white;
    shape.strokeWidth = 4;
    shape.strokeStart = start, shape.strokeEnd = end;
    return drawn({0, 0, 40, 40}, shape);
}

Node tiledFrom(Rect frame) {
    Node node = holder(frame);
    node.background = Paint(Pattern{pixelArt({"rg", "bw"})});
    return node;
}

const Picture pictures[] = {
    {"a box fills its bounds and no more",
     box({10, 12, 5, 6}, red),
     {{10, 12, r}, {14, 17, r}, {9, 12, none}, {15, 12, none}, {10, 18, none}}},
    {"edges between pixels go to the nearer one",
     box({10.4, 10.6, 5, 5}, red),
     {{10, 11, r}, {14, 15, r}, {10, 10, none}, {15, 15, none}}},
    {"a box thinner than a pixel still shows",
     box({10, 10.6, 20, 0.3}, white),
     {{20, 10, 0xff4d4d4d}, {20, 11, none}},
     20},
    {"bounds may start anywhere",
     changed(with(box({10, 10, 10, 10}, red), {box({100, 200, 2, 2}, green)}),
             [](Node &n) {
                 n.bounds = {100, 200, 10, 10};
                 n.transform = {1, 0, 0, 1, -90, -190};
             }),
     {{10, 10, g}, {12, 12, r}, {19, 19, r}}},
    {"corners are cut off",
     rounded({10, 10, 20, 20}, 8),
     {{10, 10, none}, {29, 29, none}, {20, 10, r}, {10, 20, r}, {13, 13, r}}},
    {"a radius past half the side makes a disc",
     rounded({10, 10, 20, 20}, 400),
     {{20, 10, r}, {20, 29, r}, {12, 12, none}, {27, 27, none}, {14, 14, r}},
     40},
    {"on a long view it makes a stadium",
     rounded({0, 10, 40, 10}, 400),
     {{0, 10, none}, {20, 10, r}, {4, 11, r}, {39, 19, none}}},
    {"a border lies inside",
     framed(0, 3),
     {{10, 10, g}, {12, 20, g}, {13, 20, r}, {29, 29, g}, {9, 20, none}, {30, 20, none}}},
    {"a border follows the corners", framed(10, 3), {{10, 10, none}, {20, 11, g}, {20, 14, r}, {14, 14, g}}},
    {"its inner corners are rounder by its width", framed(6, 2), {{13, 13, r}, {12, 12, g}, {11, 20, g}}, 90},
    {"a border thicker than the view fills it", framed(0, 30), {{10, 10, g}, {20, 20, g}, {30, 30, none}}},
    {"a border lies above the children",
     with(framed(0, 3), {box({0, 0, 20, 20}, blue)}),
     {{10, 10, g}, {20, 20, b}}},
    {"later children lie above",
     with(holder({0, 0, 40, 40}), {box({0, 0, 20, 20}, red), box({10, 0, 20, 20}, green)}),
     {{5, 5, r}, {15, 5, g}}},
    {"children may stick out", with(box({0, 0, 10, 10}, red), {box({20, 20, 5, 5}, green)}), {{22, 22, g}}},
    {"unless they are clipped",
     changed(with(box({0, 0, 10, 10}, red), {box({5, 5, 20, 20}, green)}), [](Node &n) { n.clips = true; }),
     {{5, 5, g}, {9, 9, g}, {10, 10, none}}},
    {"rounded clips cut the children off",
     clippingRound(10),
     {{10, 10, none}, {20, 11, g}, {20, 20, g}, {14, 14, g}, {35, 20, none}}},
    {"a group fades as one",
     fadedPair(),
     {{10, 10, 0xff800000}, {20, 20, 0xff008000}, {30, 30, 0xff008000}},
     1},
    {"opacity 0 hides", changed(box({0, 0, 40, 40}, red), [](Node &n) { n.opacity = 0; }), {{20, 20, none}}},
    {"a mask keeps what lies under its alpha",
     masked(box({10, 10, 10, 10}, {0, 0, 0, 0.5})),
     {{5, 5, none}, {15, 15, 0xff800000}, {25, 25, none}},
     1},
    {"a hidden mask keeps nothing",
     masked(changed(box({0, 0, 40, 40}, black), [](Node &n) { n.opacity = 0; })),
     {{20, 20, none}}},
    {"a mask has children and corners",
     masked(with(holder({0, 0, 40, 40}), {rounded({10, 10, 20, 20}, 10)})),
     {{20, 20, r}, {10, 10, none}}},
    {"gradients stay before and after their stops",
     shaded({0, 0}, {0, 1}),
     {{3, 2, r}, {3, 9, r}, {3, 31, b}, {3, 38, b}, {3, 20, 0xff7c0082}},
     6},
    {"gradients run to the side", shaded({0, 0}, {1, 0}), {{2, 3, r}, {38, 3, b}, {2, 38, r}}, 3},
    {"patterns start at the view's corner",
     tiledFrom({11, 11, 9, 9}),
     {{11, 11, r}, {12, 11, g}, {11, 12, b}, {12, 12, w}, {13, 13, r}, {20, 11, none}}},
    {"a quarter turn",
     turned(M_PI / 2),
     {{18, 30, r}, {16, 20, r}, {19, 39, r}, {20, 30, none}, {15, 30, none}}},
    {"an eighth of a turn", turned(M_PI / 4), {{24, 28, r}, {23, 20, none}, {30, 20, none}}, 60},
    {"no size, no picture",
     with(holder({0, 0, 40, 40}),
          {changed(box({10, 10, 10, 10}, red), [](Node &n) { n.transform.a = n.transform.d = 0; }),
           box({20, 20, 5, 5}, green)}),
     {{10, 10, none}, {22, 22, g}}},
    {"pressed to a line, no picture",
     with(holder({0, 0, 40, 40}),
          {changed(box({10, 10, 10, 10}, red), [](Node &n) { n.transform = {1, 1, 1, 1, 0, 0}; }),
           box({20, 20, 5, 5}, green)}),
     {{10, 10, none}, {22, 22, g}}},
    {"what is no number harms nothing",
     with(holder({0, 0, 40, 40}), {changed(box({10, 10, 10, 10}, red), [](Node &n) { n.transform.tx = NAN; }),
                                   box({20, 20, INFINITY, 5}, blue), box({0, 20, 5, 5}, green)}),
     {{10, 10, none}, {2, 22, g}}},
    {"the whole outline is stroked",
     stroked(0, 1),
     {{8, 8, w}, {20, 11, w}, {31, 31, w}, {8, 20, w}, {20, 20, none}}},
    {"the first quarter of the outline",
     stroked(0, 0.25),
     {{20, 9, w}, {28, 10, w}, {31, 20, none}, {20, 30, none}, {9, 20, none}}},
    {"the last half of the outline",
     stroked(0.5, 1),
     {{20, 9, none}, {31, 20, none}, {20, 30, w}, {9, 20, w}}},
    {"nothing of the outline", stroked(0.5, 0.5), {{20, 30, none}, {30, 30, none}, {9, 20, none}}},
};

class Drawings : public testing::TestWithParam<Picture> {};

} // namespace

TEST_P(Drawings, LookRight) {
    const Picture &picture = GetParam();
    Bitmap bitmap = draw(screen(40, 40, {picture.root}));
    for (const Probe &probe : picture.probes) {
        uint32_t seen = pixel(bitmap, probe.x, probe.y);
        EXPECT_LE(difference(seen, probe.color), picture.tolerance)
            << "at " << probe.x << ", " << probe.y << ": " << hex(seen) << " for " << hex(probe.color);
    }
}

INSTANTIATE_TEST_SUITE_P(Render, Drawings, testing::ValuesIn(pictures));

TEST(RoundCaps, ReachPastTheEndsOfALine) {
    Shape shape;
    shape.path.elements = {{PathElement::Verb::move, {{10, 20}}}, {PathElement::Verb::line, {{30, 20}}}};
    shape.stroke = white;
    shape.strokeWidth = 6;
    EXPECT_EQ(inkOf(draw(screen(40, 40, {drawn({0, 0, 40, 40}, shape)}))), (PixelRect{10, 17, 20, 6}));
    shape.roundCaps = true;
    EXPECT_EQ(inkOf(draw(screen(40, 40, {drawn({0, 0, 40, 40}, shape)}))), (PixelRect{7, 17, 26, 6}));
}

TEST(RoundedClip, LetsNoneOfTheBackgroundShineThroughItsEdge) {
    Bitmap bitmap = draw(screen(40, 40, {clippingRound(10)}));
    for (uint32_t pixel : bitmap.pixels) EXPECT_EQ(pixel & 0xff0000, 0u) << hex(pixel);
}

TEST(Scale, ADiscIsTheSameDiscOnEveryScreen) {
    for (double scale : {1.0, 2.0, 3.0}) {
        Bitmap bitmap = draw(screen(40, 40, {rounded({10, 10, 20, 20}, 10)}, scale));
        EXPECT_EQ(bitmap.width, 40 * scale);
        EXPECT_EQ(bitmap.scale, scale);
        double area = 0;
        for (uint32_t pixel : bitmap.pixels) area += (pixel >> 16 & 0xff) / 255.0;
        EXPECT_NEAR(area / (scale * scale), M_PI * 100, 3) << "at scale " << scale;
    }
}

TEST(Ground, ShowsWhereNothingIsDrawn) {
    Scene scene = screen(4, 4, {});
    EXPECT_EQ(hex(pixel(draw(scene), 1, 1)), "ff000000");
    scene.background = {};
    EXPECT_EQ(hex(pixel(draw(scene), 1, 1)), "00000000");
}

} // namespace render

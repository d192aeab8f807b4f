// A frame painted after another is the same, byte for byte, as one painted from nothing, whatever changed
// between them; and no more is painted than has to be. A regression shows as trails behind moving views, or
// as a simulation that repaints the whole screen for a blinking dot.
#include "pictures.hpp"

#include "Render/Frame/Compositor.hpp"

#include <functional>
#include <random>

namespace render {

namespace {

Node named(uint64_t id, Node node) {
    node.id = id;
    return node;
}

Node label(uint64_t id, const Rect &frame, const std::string &text) {
    TextStyle style;
    style.size = 12;
    return named(id, drawn(frame, line(text, {0, 0, frame.width, frame.height}, style)));
}

Node panel(uint64_t id, const Rect &frame) {
    Node node = named(id, holder(frame));
    node.clips = true;
    node.cornerRadius = 10;
    node.backdrop = Backdrop{8, 1.8, 0, 0, Rgba{0, 0, 0, 0.5}};
    return node;
}

// Everything that there is, on 240 × 200 points: a gradient below, icons, a glow, two materials one above the
// other, a faded and a masked group. The children of `roots[0]` and of `roots[1]` have ids 10… and 20….
Scene everything(double scale) {
    static const BitmapRef art = pixelArt({"rgbw", "grbw", "bwrg", "wrgb"});
    Node home = named(1, holder({0, 0, 240, 200}));
    home.gradient = Gradient{{red, blue, green}, {0, 0.4, 1}, {0, 0}, {1, 1}};
    for (int i = 0; i < 6; i++) {
        Node icon = named(10 + i, box({10 + 38.0 * i, 20 + 7.5 * i, 30, 30}, {0.1 * i, 0.5, 1 - 0.1 * i, 1}));
        icon.cornerRadius = 7;
        icon.clips = i % 2;
        icon.drawings.push_back(Image{art, {5, 5, 20, 20}, {}, {}});
        icon.children.push_back(label(100 + i, {0, 15, 30, 15}, "i " + std::to_string(i)));
        home.children.push_back(icon);
    }
    Node window = named(2, holder({0, 0, 240, 200}));
    Node glow = named(20, box({200, 150, 10, 10}, white));
    glow.shadow = Shadow{{1, 0.5, 0, 1}, 1, 13, {}, Path::rect({0, 0, 10, 10})};
    Node lower = with(panel(21, {20, 40, 120, 80}),
                      {label(120, {5, 5, 80, 20}, "panel"), named(121, box({60, 30, 30, 30}, red))});
    Node upper = with(panel(22, {90, 90, 100, 60}), {label(122, {5, 5, 80, 20}, "over it")});
    Node card =
        with(named(23, box({150, 20, 40, 40}, {1, 1, 1, 0.8})), {named(123, box({20, 20, 30, 30}, blue))});
    card.opacity = 0.7;
    card.shadow = Shadow{black, 0.8, 4, {0, 3}, std::nullopt};
    Node cut = named(24, box({10, 140, 60, 40}, green));
    cut.mask = std::make_shared<Node>(label(0, {0, 0, 60, 40}, "mask"));
    window.children = {glow, lower, upper, card, cut};
    return screen(240, 200, {home, window}, scale);
}

struct Step {
    const char *name;
    std::function<void(Scene &)> change;
};

void PrintTo(const Step &step, std::ostream *out) { *out << step.name; }

Node &icon(Scene &scene, int i) { return scene.roots[0].children[i]; }
Node &inWindow(Scene &scene, int i) { return scene.roots[1].children[i]; }
enum { glow, lower, upper, card, cut };

const Step steps[] = {
    {"nothing", [](Scene &) {}},
    {"a colour", [](Scene &s) { icon(s, 0).background = Paint(white); }},
    {"a view moves", [](Scene &s) { icon(s, 4).transform.tx += 25.3; }},
    {"a view below a panel moves", [](Scene &s) { icon(s, 2).transform.ty += 3; }},
    {"a view beside a panel moves, within reach of its blur",
     [](Scene &s) { icon(s, 0).transform.ty -= 12; }},
    {"a view turns", [](Scene &s) { icon(s, 3).transform = {0.8, 0.6, -0.6, 0.8, 120, 30}; }},
    {"a view shrinks to nothing", [](Scene &s) { icon(s, 1).transform.a = icon(s, 1).transform.d = 0; }},
    {"a text",
     [](Scene &s) {
         inWindow(s, lower).children[0].drawings[0] = line("other", {0, 0, 80, 20});
     }},
    {"a glow's strength", [](Scene &s) { inWindow(s, glow).shadow->opacity = 0.3; }},
    {"a glow goes out", [](Scene &s) { inWindow(s, glow).shadow.reset(); }},
    {"a glow's view moves", [](Scene &s) { inWindow(s, glow).transform.tx -= 60; }},
    {"a panel fades", [](Scene &s) { inWindow(s, lower).opacity = 0.4; }},
    {"a panel disappears", [](Scene &s) { inWindow(s, lower).opacity = 0; }},
    {"a panel grows", [](Scene &s) { inWindow(s, lower).bounds.height += 50; }},
    {"a panel moves", [](Scene &s) { inWindow(s, upper).transform.tx -= 55; }},
    {"a panel's corners", [](Scene &s) { inWindow(s, upper).cornerRadius = 40; }},
    {"a panel's material",
     [](Scene &s) {
         inWindow(s, lower).backdrop->tint = Rgba{1, 1, 1, 0.7};
     }},
    {"a panel's blur", [](Scene &s) { inWindow(s, lower).backdrop->blurRadius = 2; }},
    {"what is in a panel", [](Scene &s) { inWindow(s, lower).children[1].transform.tx = 10; }},
    {"scrolling",
     [](Scene &s) {
         for (Node &n : inWindow(s, lower).children) n.transform.tx -= 17.5;
     }},
    {"the whole window fades", [](Scene &s) { s.roots[1].opacity = 0.5; }},
    {"the window moves", [](Scene &s) { s.roots[1].transform.ty = 20; }},
    {"a group fades", [](Scene &s) { inWindow(s, card).opacity = 0.2; }},
    {"what casts a shadow changes its outline",
     [](Scene &s) { inWindow(s, card).children[0].bounds.width = 60; }},
    {"what casts a shadow moves", [](Scene &s) { inWindow(s, card).transform.ty += 40; }},
    {"a shadow moves away from its view",
     [](Scene &s) {
         inWindow(s, card).shadow->offset = {-20, 20};
     }},
    {"a mask",
     [](Scene &s) {
         inWindow(s, cut).mask = std::make_shared<Node>(box({5, 5, 20, 20}, black));
     }},
    {"a mask goes", [](Scene &s) { inWindow(s, cut).mask.reset(); }},
    {"a border", [](Scene &s) { icon(s, 5).borderWidth = 2, icon(s, 5).borderColor = white; }},
    {"clipping", [](Scene &s) { inWindow(s, card).clips = true; }},
    {"a view goes", [](Scene &s) { s.roots[0].children.erase(s.roots[0].children.begin() + 2); }},
    {"a view comes in between",
     [](Scene &s) {
         s.roots[0].children.insert(s.roots[0].children.begin() + 1, named(90, box({30, 30, 90, 20}, white)));
     }},
    {"nameless views come and go",
     [](Scene &s) {
         s.roots[0].children.insert(s.roots[0].children.begin(), box({30, 30, 90, 20}, white));
         inWindow(s, lower).children.clear();
     }},
    {"a view comes to the front",
     [](Scene &s) {
         auto &c = s.roots[1].children;
         std::rotate(c.begin() + lower, c.begin() + upper, c.end());
     }},
    {"a view goes to the back",
     [](Scene &s) {
         auto &c = s.roots[1].children;
         std::rotate(c.begin(), c.begin() + upper, c.begin() + card);
     }},
    {"a view from below a panel to above it",
     [](Scene &s) {
         Node moved = icon(s, 2);
         s.roots[0].children.erase(s.roots[0].children.begin() + 2);
         s.roots[1].children.push_back(moved);
     }},
    {"windows change places", [](Scene &s) { std::swap(s.roots[0], s.roots[1]); }},
    {"a window goes", [](Scene &s) { s.roots.pop_back(); }},
    {"the screen turns",
     [](Scene &s) {
         for (Node &n : s.roots) n.transform = {0, 1, -1, 0, 200, 0};
     }},
    {"another size", [](Scene &s) { s.size.width = 200; }},
    {"another ground",
     [](Scene &s) {
         s.background = white;
         s.roots.erase(s.roots.begin());
     }},
};

class Changes : public testing::TestWithParam<Step> {};

::testing::AssertionResult sameBytes(const Bitmap &one, const Bitmap &other) {
    if (one == other) return ::testing::AssertionSuccess();
    if (one.width != other.width || one.height != other.height)
        return ::testing::AssertionFailure() << "other size";
    for (size_t i = 0; i < one.pixels.size(); i++)
        if (one.pixels[i] != other.pixels[i])
            return ::testing::AssertionFailure()
                   << "first difference at " << i % one.width << ", " << i / one.width << ": "
                   << hex(one.pixels[i]) << " for " << hex(other.pixels[i]);
    return ::testing::AssertionFailure() << "other scale";
}

bool covers(const std::vector<PixelRect> &areas, int x, int y) {
    for (const PixelRect &area : areas)
        if (x >= area.x && x < area.x + area.width && y >= area.y && y < area.y + area.height) return true;
    return false;
}

} // namespace

TEST_P(Changes, GiveTheSameBytesAsDrawingFromNothing) {
    for (double scale : {1.0, 2.0, 3.0}) {
        Scene before = everything(scale), after = before;
        GetParam().change(after);
        Renderer renderer;
        Bitmap first = renderer.draw(before);
        Bitmap second = renderer.draw(after);
        EXPECT_TRUE(sameBytes(second, draw(after))) << "at scale " << scale;
        if (first.pixels.size() == second.pixels.size())
            for (size_t i = 0; i < first.pixels.size(); i++)
                if (first.pixels[i] != second.pixels[i])
                    ASSERT_TRUE(covers(renderer.repainted(), i % first.width, i / first.width))
                        << "changed, but not reported as painted";
        EXPECT_TRUE(sameBytes(renderer.draw(before), first)) << "and back, at scale " << scale;
    }
}

INSTANTIATE_TEST_SUITE_P(Render, Changes, testing::ValuesIn(steps));

TEST(ManyChanges, OneAfterAnotherLeaveNoTrace) {
    std::mt19937 random(20);
    Scene scene = everything(1);
    Renderer renderer;
    for (int i = 0; i < 150; i++) {
        if (i % 25 == 0) scene = everything(1);
        // Only steps that any earlier one leaves possible.
        Node &home = scene.roots[random() % scene.roots.size()];
        if (home.children.empty()) continue;
        Node &node = home.children[random() % home.children.size()];
        switch (random() % 6) {
        case 0:
            node.transform.tx += static_cast<double>(random() % 100) / 3 - 16;
            break;
        case 1:
            node.opacity = static_cast<double>(random() % 5) / 4;
            break;
        case 2:
            node.bounds.width += static_cast<double>(random() % 21) - 10;
            break;
        case 3:
            std::swap(node, home.children[random() % home.children.size()]);
            break;
        case 4:
            node.clips = !node.clips;
            break;
        case 5:
            node.cornerRadius = random() % 30;
            break;
        }
        ASSERT_TRUE(sameBytes(renderer.draw(scene), draw(scene))) << "step " << i;
    }
}

// A node of the scene, at any depth, that is no root.
Node &anyNode(Scene &scene, std::mt19937 &random) {
    Node *node = &scene.roots[random() % scene.roots.size()];
    do node = &node->children[random() % node->children.size()];
    while (!node->children.empty() && random() % 2);
    return *node;
}

// One view moves for some frames, so that painting begins just below it, while others change now and then,
// above it, below it and round it.
TEST(ManyChanges, WhileOneViewMovesLeaveNoTrace) {
    std::mt19937 random(7);
    Renderer renderer;
    for (int round = 0; round < 40; round++) {
        Scene scene = everything(round % 2 ? 2 : 1);
        for (int i = 0; i < 6; i++) inWindow(scene, random() % 5).clips = random() % 2;
        if (round % 3 == 0) scene.roots[round % 2].mask = std::make_shared<Node>(icon(scene, 4));
        Node &mover = anyNode(scene, random);
        for (int frame = 0; frame < 8; frame++) {
            mover.transform.tx += 5.25;
            Node &other = anyNode(scene, random);
            Node &around = scene.roots[random() % scene.roots.size()];
            switch (random() % 8) {
            case 0:
                other.transform.ty += 7;
                break;
            case 1:
                other.opacity = static_cast<double>(random() % 3) / 2;
                break;
            case 2:
                other.cornerRadius = random() % 30;
                break;
            case 3:
                around.opacity = random() % 2 ? 0.5 : 1;
                break;
            case 4:
                around.clips = !around.clips;
                around.bounds.width = 200;
                break;
            case 5:
                other.background = Paint(random() % 2 ? white : blue);
                break;
            }
            ASSERT_TRUE(sameBytes(renderer.draw(scene), draw(scene)))
                << "round " << round << ", frame " << frame;
        }
    }
}

TEST(Repainting, KeepsToWhatChanged) {
    struct {
        const char *name;
        std::function<void(Scene &)> change;
        double most; // of the screen
    } cases[] = {
        {"nothing", [](Scene &) {}, 0},
        {"a label in an icon", [](Scene &s) { icon(s, 0).children[0].opacity = 0.999; }, 0.2},
        {"a small view and its glow", [](Scene &s) { inWindow(s, glow).background = Paint(red); }, 0.4},
        {"a view outside of the screen",
         [](Scene &s) {
             s.roots[0].children.push_back(named(99, box({500, 0, 9, 9}, red)));
         },
         0},
        {"a hidden view",
         [](Scene &s) {
             Node hidden = box({0, 0, 240, 200}, red);
             hidden.opacity = 0;
             s.roots[1].children.push_back(hidden);
         },
         0},
    };
    for (const auto &item : cases) {
        Renderer renderer;
        Scene scene = everything(3);
        const Bitmap &bitmap = renderer.draw(scene);
        double whole = static_cast<double>(bitmap.pixels.size()), painted = 0;
        item.change(scene);
        renderer.draw(scene);
        for (const PixelRect &area : renderer.repainted())
            painted += static_cast<double>(area.width) * area.height;
        EXPECT_LE(painted / whole, item.most) << item.name;
    }
}

TEST(Materials, AreMadeAnewOnlyForWhatChangesBelowThem) {
    struct {
        const char *name;
        std::function<void(Scene &)> change;
        bool anew;
    } cases[] = {
        {"a panel fades", [](Scene &s) { inWindow(s, upper).opacity = 0.3; }, false},
        {"it is cropped", [](Scene &s) { inWindow(s, upper).bounds.height = 20; }, false},
        {"its content scrolls", [](Scene &s) { inWindow(s, upper).children[0].transform.tx = 30; }, false},
        {"its window fades", [](Scene &s) { s.roots[1].opacity = 0.5; }, true}, // a panel below another
        {"something above it moves", [](Scene &s) { inWindow(s, card).transform.ty += 30; }, false},
        {"something far below it moves", [](Scene &s) { s.roots[0].children.back().transform.tx += 5; },
         false},
        {"something below it moves", [](Scene &s) { icon(s, 3).transform.tx += 5; }, true},
    };
    for (const auto &item : cases) {
        Compositor compositor;
        Scene scene = everything(1);
        scene.roots[0].children.push_back(named(80, box({225, 190, 5, 5}, red)));
        compositor.draw(scene);
        MaterialSource::Work before = compositor.materialWork();
        EXPECT_GT(before.painted, 0);
        item.change(scene);
        compositor.draw(scene);
        MaterialSource::Work after = compositor.materialWork();
        EXPECT_EQ(after.painted > before.painted, item.anew) << item.name;
        EXPECT_EQ(after.blurred > before.blurred, item.anew) << item.name;
    }
}

} // namespace render

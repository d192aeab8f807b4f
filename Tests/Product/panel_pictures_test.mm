// What only the picture tells about the panel: that nothing leaves its edge, that its question can be read
// however many applications it is about, and that an application that is closed takes all it shows along.
#include "Tweak/Core/PanelViews.h"
#include "Tweak/Core/State.h"
#include "Tweak/Core/Tags.h"
#include "Tweak/Lock/Lock.h"
#include "Tweak/Panel/SpringBoard+Gestures.h"
#include "Tweak/Start/HookTable.h"
#include "Tweak/StatusBar/StatusBar.h"
#include "UIKit/UIKit+Further.h"

#include "Render/Renderer.hpp"
#include "SpringBoard/Fingers.h"
#include "SpringBoard/Sandbox.h"
#include "UIKit/Application/ApplicationState.h"
#include "UIKit/Touch/TouchInput.h"

#include <algorithm>
#include <cmath>

namespace {

using namespace pendix;

constexpr int kFinger = 0;

double luminance(uint32_t pixel) {
    auto linear = [&](int shift) {
        double value = (pixel >> shift & 255) / 255.0;
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(16) + 0.7152 * linear(8) + 0.0722 * linear(0);
}

class PanelPictures : public testing::Test {
protected:
    // `keys` is the inside of a property list, `badged` applications have a badge.
    void open(const std::string &keys, int badged) {
        auto file = sandbox.path("/var/mobile/Library/Preferences/org.quillhub.PendixSettings.plist");
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file) << "{ enable = YES; " << keys << " }";
        harness::boot(harness::profile("iPhone 5"), harness::applications(40), [] {
            createBadgeList();
            installHooks();
        });
        for (int i = 1; i <= badged; ++i) sim::setBadge("org.example." + std::to_string(i), 88);
        [Spring tap];
        harness::wait(1);
        ASSERT_EQ([itemViews() count], static_cast<NSUInteger>(badged));
    }

    void longPress() {
        sim::touchBegan(kFinger, harness::middle([itemViews() objectAtIndex:0]));
        harness::wait(1);
        sim::touchEnded(kFinger);
        harness::wait(0.5);
    }

    // The pixels of a part of the screen, row by row.
    std::vector<uint32_t> pixels(CGRect area) {
        const render::Bitmap &picture = renderer.draw(sim::currentScene());
        auto whole = [&](CGFloat points) { return static_cast<int>(std::round(points * picture.scale)); };
        std::vector<uint32_t> result;
        for (int y = whole(CGRectGetMinY(area)); y < whole(CGRectGetMaxY(area)); ++y)
            for (int x = whole(CGRectGetMinX(area)); x < whole(CGRectGetMaxX(area)); ++x)
                result.push_back(picture.pixels.at(static_cast<size_t>(y * picture.width + x)));
        return result;
    }

    CGRect onScreen(UIView *view) { return [view convertRect:view.bounds toView:nil]; }

    harness::Sandbox sandbox;
    render::Renderer renderer;
};

// While it grows and shrinks its content is larger than the panel; and badges stand above their cards, which
// stand at its upper edge. What can be seen of the content outside would go when the content is hidden.
TEST_F(PanelPictures, NothingLeavesThePanel) {
    open("ca = YES; light = YES;", 3);
    const CGRect screen = [[UIScreen mainScreen] bounds];
    auto leaves = [&] {
        const auto shown = pixels(screen);
        contentView().hidden = YES;
        const auto without = pixels(screen);
        contentView().hidden = NO;
        const CGRect panel = [[panelView().layer presentationLayer] frame];
        size_t inside = 0, outside = 0;
        for (size_t i = 0; i < shown.size(); ++i) {
            const auto columns = static_cast<size_t>(screen.size.width * 2);
            const CGPoint at = {(i % columns + 0.5f) / 2, (i / columns + 0.5f) / 2};
            if (shown[i] != without[i])
                ++(CGRectContainsPoint(CGRectInset(panel, -0.5, -0.5), at) ? inside : outside);
        }
        EXPECT_GT(inside, 0u);
        return outside;
    };
    EXPECT_EQ(leaves(), 0u) << "at rest";
    [Spring dismisPendixUI];
    for (double seconds : {0.1, 0.1, 0.1}) {
        harness::wait(seconds);
        EXPECT_EQ(leaves(), 0u) << "closing";
    }
    harness::wait(1);
    [Spring tap];
    for (double seconds : {0.2, 0.1, 0.1}) {
        harness::wait(seconds);
        EXPECT_EQ(leaves(), 0u) << "opening";
    }
}

class Question : public PanelPictures, public testing::WithParamInterface<std::tuple<int, bool>> {};

// Large text needs a contrast of 3 with what it stands on, small text 4.5.
TEST_P(Question, CanBeRead) {
    const auto [badged, light] = GetParam();
    open(light ? "light = YES;" : "", badged);
    longPress();
    for (NSInteger tag : {tags::promptText, tags::promptCancel, tags::promptOkay}) {
        const auto area = pixels(CGRectInset(onScreen(subviewWithTag(contentView(), tag)), 3, 3));
        ASSERT_FALSE(area.empty());
        double darkest = 1, lightest = 0;
        for (uint32_t pixel : area) {
            darkest = std::min(darkest, luminance(pixel));
            lightest = std::max(lightest, luminance(pixel));
        }
        EXPECT_GT((lightest + 0.05) / (darkest + 0.05), 7) << tag;
    }
}

INSTANTIATE_TEST_SUITE_P(Of, Question, testing::Combine(testing::Values(1, 12, 40), testing::Bool()),
                         [](const auto &info) {
                             return std::to_string(std::get<0>(info.param)) +
                                    (std::get<1>(info.param) ? "Light" : "Dark");
                         });

class Collapse : public PanelPictures, public testing::WithParamInterface<const char *> {
protected:
    // Of a picture of `room`, the pixels that are clearly others than in `empty`: what lies behind the dark
    // material shines through a little, and changes.
    struct Shown {
        size_t inside = 0, outside = 0; // of an area
        double below = 0;               // a line
    };
    static Shown shown(const std::vector<uint32_t> &picture, const std::vector<uint32_t> &empty, CGRect room,
                       CGRect area, CGFloat line) {
        const auto columns = static_cast<size_t>(std::round(room.size.width * 2));
        Shown result;
        for (size_t i = 0; i < picture.size(); ++i) {
            if (!differs(picture[i], empty.at(i))) continue;
            const CGPoint at = {room.origin.x + (i % columns + 0.5f) / 2,
                                room.origin.y + (i / columns + 0.5f) / 2};
            ++(CGRectContainsPoint(area, at) ? result.inside : result.outside);
            if (at.y > line) ++result.below;
        }
        return result;
    }

private:
    static bool differs(uint32_t a, uint32_t b) {
        constexpr int kClearly = 48;
        for (int shift : {0, 8, 16})
            if (std::abs(static_cast<int>(a >> shift & 255) - static_cast<int>(b >> shift & 255)) > kClearly)
                return true;
        return false;
    }
};

// All that an item shows becomes smaller at the icon's pace, towards the item's middle: badges reach thirteen
// points beyond its sides and eight above it, the shadow of a card's icon ten below; names stand in its
// lowest fifth. What the item leaves behind in the end is the panel without it.
TEST_P(Collapse, TakesAllAlong) {
    const bool card = std::string(GetParam()).find("ca") == 0;
    open(GetParam(), 2);
    UIView *item = [itemViews() objectAtIndex:1], *icon = subviewWithTag(item, tags::itemIcon);
    const CGRect place = onScreen(item);
    const CGFloat width = icon.bounds.size.width, height = place.size.height;
    const CGRect room = CGRectIntersection(CGRectInset(place, -20, -20), onScreen(panelView()));
    // How large the icon is, and what is seen.
    std::vector<std::pair<CGFloat, std::vector<uint32_t>>> moments = {{1, pixels(room)}};
    [Spring closeIcon:item];
    for (double seconds : {0.1, 0.05, 0.04, 0.05, 0.04}) {
        harness::wait(seconds);
        moments.push_back({[[icon.layer presentationLayer] bounds].size.width / width, pixels(room)});
    }
    EXPECT_LT(moments.back().first, 0.05);
    harness::wait(0.5);
    const auto empty = pixels(room);
    double name = 0;
    for (const auto &[scale, picture] : moments) {
        const CGFloat aside = (place.size.width / 2 + 13) * scale, above = (height / 2 + 8) * scale,
                      below = (height / 2 + (card ? 10 : 1)) * scale;
        const CGRect area = CGRectMake(CGRectGetMidX(place) - aside - 1, CGRectGetMidY(place) - above - 1,
                                       2 * aside + 2, above + below + 2);
        const Shown seen = shown(picture, empty, room, area, CGRectGetMidY(place) + 0.33 * height * scale);
        EXPECT_EQ(seen.outside, 0u) << "beside an icon of " << scale;
        if (scale > 0.1) EXPECT_GT(seen.inside, 20u) << scale;
        if (scale == 1) name = seen.below;
        if (scale < 1)
            EXPECT_LE(seen.below, 0.9 * scale * name + 5) << "of the name, beside an icon of " << scale;
    }
}

INSTANTIATE_TEST_SUITE_P(Of, Collapse,
                         testing::Values("", "light = YES;", "ca = YES;", "ca = YES; light = YES;"),
                         [](const auto &info) {
                             const std::string keys = info.param;
                             return std::string(keys.find("ca") != keys.npos ? "Card" : "Item") +
                                    (keys.find("light") != keys.npos ? "Light" : "Dark");
                         });

} // namespace

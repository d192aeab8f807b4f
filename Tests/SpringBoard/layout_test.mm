// Proves that on every device the icons, their labels and badges, the dots and the dock have room of their
// own.
#include "Harness.h"

#include "SpringBoard/Home/HomeLayout.hpp"
#include "UIKit/UIKit+Further.h"

#include <UIKit/UIKit.h>

namespace {

struct Case {
    const char *device;
    int rows;
    double icon;
};

const Case kCases[] = {{"iPhone 4S", 4, 60},     {"iPhone 5", 5, 60}, {"iPhone 6", 6, 60},
                       {"iPhone 6 Plus", 6, 60}, {"iPad 2", 5, 76},   {"iPad Air", 5, 76}};

// Upright, or on its side.
sim::HomeLayout layoutOf(const sim::Device &device, bool turned = false) {
    return sim::homeLayout(device.pad, turned ? render::Size{device.height, device.width}
                                              : render::Size{device.width, device.height});
}

class Layout : public testing::TestWithParam<Case> {};

void keepsThingsApart(const sim::HomeLayout &layout, double icon) {
    EXPECT_EQ(layout.icon, icon);
    constexpr double kStatusBar = 20, kLabel = 20, kDots = 7, kBadge = 10;
    auto first = layout.iconFrame(0), last = layout.iconFrame(layout.perPage() - 1);
    EXPECT_GE(first.y - kBadge, kStatusBar - 5) << "badges may touch the status bar, no more";
    EXPECT_NEAR(first.x, layout.screen.width - last.x - last.width, 0.01) << "margins are alike";
    EXPECT_LE(last.x + last.width + kBadge, layout.screen.width);
    for (size_t i = 1; i < layout.perPage(); ++i) {
        auto before = layout.iconFrame(i - 1), frame = layout.iconFrame(i);
        if (i % static_cast<size_t>(layout.columns)) {
            EXPECT_GE(frame.x - before.x - before.width, 15);
        } else {
            EXPECT_GE(frame.y - before.y - before.height, kLabel + 5);
        }
    }
    EXPECT_LE(last.y + last.height + kLabel, layout.pageDots - kDots / 2) << "labels end above the dots";
    EXPECT_LE(layout.pageDots + kDots / 2, layout.dockFrame().y);
    EXPECT_EQ(layout.dockFrame().y + layout.dockFrame().height, layout.screen.height);
    for (size_t count = 1; count <= 4; ++count) {
        auto left = layout.dockIconFrame(0, count), right = layout.dockIconFrame(count - 1, count);
        EXPECT_NEAR(left.x, layout.screen.width - right.x - right.width, 0.01) << "centred";
        EXPECT_LE(left.y + left.height + kLabel, layout.dockHeight);
    }
}

} // namespace

TEST_P(Layout, KeepsThingsApart) {
    auto device = harness::profile(GetParam().device);
    EXPECT_EQ(layoutOf(device).rows, GetParam().rows);
    for (bool turned : {false, true}) {
        SCOPED_TRACE(turned ? "on its side" : "upright");
        keepsThingsApart(layoutOf(device, turned), GetParam().icon);
    }
}

TEST_P(Layout, PlacesTheViews) {
    auto device = harness::profile(GetParam().device);
    harness::boot(device, harness::applications(layoutOf(device).columns * GetParam().rows + 3));
    SBIconView *first = harness::iconView("org.example.1"),
               *dock = harness::iconView("com.apple.mobilephone");
    EXPECT_EQ([first frame].size.width, GetParam().icon);
    CGRect screen = [[UIScreen mainScreen] bounds];
    EXPECT_TRUE(CGRectContainsPoint(screen, [first convertPoint:CGPointZero toView:nil]));
    EXPECT_GT([dock convertPoint:CGPointZero toView:nil].y, device.height - 130);
    std::string number = std::to_string(4 * GetParam().rows + 1);
    SBIconView *next = harness::iconView("org.example." + number);
    EXPECT_GE([next convertPoint:CGPointZero toView:nil].x, device.width) << "on the second page";
}

INSTANTIATE_TEST_SUITE_P(Devices, Layout, testing::ValuesIn(kCases), [](const auto &info) {
    std::string name = info.param.device;
    std::erase(name, ' ');
    return name;
});

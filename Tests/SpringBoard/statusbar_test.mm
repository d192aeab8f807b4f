// Proves the shape of the status bar that other code finds its way through by index, and that its items stand
// in their places and change with the clock and the style.
#include "Harness.h"

#include "Runtime/Time/Timers.hpp"
#include "UIKit/Application/ApplicationState.h"
#include "UIKit/Images/ImageState.h"
#include "UIKit/StatusBar/StatusBarData.hpp"
#include "UIKit/StatusBar/StatusBarState.h"
#include "UIKit/Touch/TouchInput.h"
#include "UIKit/UIKit+Further.h"
#include "UIKit/Views/ViewState.h"

#include <UIKit/UIStatusBar.h>

#include <algorithm>

namespace {

UIView *foreground() {
    UIView *bar = [[[[UIApplication sharedApplication] statusBarWindow] subviews] objectAtIndex:0];
    return [[bar subviews] objectAtIndex:1];
}

std::vector<UIStatusBarItemView *> itemViews() {
    std::vector<UIStatusBarItemView *> views;
    for (UIStatusBarItemView *view in [foreground() subviews]) views.push_back(view);
    std::sort(views.begin(), views.end(),
              [](UIView *a, UIView *b) { return [a frame].origin.x < [b frame].origin.x; });
    return views;
}

std::vector<std::string> classes() {
    std::vector<std::string> names;
    for (UIView *view : itemViews()) names.push_back(object_getClassName(view));
    return names;
}

using sim::StatusBarSide;
using sim::StatusBarSlot;

} // namespace

TEST(StatusBar, HasItsPartsWhereOthersLookForThem) {
    harness::boot();
    UIWindow *window = [[UIApplication sharedApplication] statusBarWindow];
    EXPECT_TRUE([window isKindOfClass:[UIStatusBarWindow class]]);
    EXPECT_EQ([window windowLevel], 1000);
    EXPECT_EQ(sim::role(window), sim::WindowRole::statusBar);
    UIView *bar = [[window subviews] objectAtIndex:0];
    EXPECT_TRUE([bar isKindOfClass:[UIStatusBar class]]);
    EXPECT_EQ([[UIApplication sharedApplication] statusBar], bar);
    ASSERT_EQ([[bar subviews] count], 2u);
    EXPECT_FALSE([[[bar subviews] objectAtIndex:0] isKindOfClass:[UIStatusBarForegroundView class]]);
    EXPECT_TRUE([foreground() isKindOfClass:[UIStatusBarForegroundView class]]);
    for (UIStatusBarItemView *view : itemViews()) {
        EXPECT_TRUE([view isKindOfClass:[UIStatusBarItemView class]]);
        EXPECT_TRUE([view item]);
        EXPECT_FALSE([[view item] indicatorName]);
        EXPECT_FALSE([view isUserInteractionEnabled]);
    }
}

TEST(StatusBar, ShowsTheItemsOfTheDevice) {
    struct Case {
        const char *device;
        std::vector<std::string> classes;
    };
    const Case phone{"iPhone 5",
                     {"UIStatusBarSignalStrengthItemView", "UIStatusBarServiceItemView",
                      "UIStatusBarDataNetworkItemView", "UIStatusBarTimeItemView",
                      "UIStatusBarBatteryPercentItemView", "UIStatusBarBatteryItemView"}};
    harness::boot(harness::profile(phone.device));
    EXPECT_EQ(classes(), phone.classes);
    double end = 0;
    for (UIView *view : itemViews()) {
        EXPECT_GT([view frame].origin.x, end) << "items keep a distance";
        EXPECT_GT([view frame].size.width, 0);
        EXPECT_EQ([view frame].size.height, 20);
        end = CGRectGetMaxX([view frame]);
    }
    EXPECT_LT(end, 320);
    EXPECT_NEAR(CGRectGetMidX([itemViews()[3] frame]), 160, 0.5) << "the time stands in the middle";
}

TEST(StatusBar, OfATabletHasNoSignal) {
    harness::boot(harness::profile("iPad 2"));
    EXPECT_EQ(classes(),
              (std::vector<std::string>{"UIStatusBarServiceItemView", "UIStatusBarDataNetworkItemView",
                                        "UIStatusBarTimeItemView", "UIStatusBarBatteryPercentItemView",
                                        "UIStatusBarBatteryItemView"}));
}

TEST(StatusBar, TellsTheTimeOfTheDevicesClockAndLanguage) {
    struct Case {
        const char *language;
        double secondsOfDay;
        const char *text;
    };
    const Case cases[] = {{"en", 37230, "10:20 AM"}, {"en", 0, "12:00 AM"},  {"en", 43200, "12:00 PM"},
                          {"en", 86399, "11:59 PM"}, {"it", 37230, "10:20"}, {"es", 47100, "13:05"}};
    for (const auto &step : cases) {
        sim::device().language = step.language;
        sim::setWallClock(1425168000 + step.secondsOfDay);
        EXPECT_EQ(sim::statusBarTime(), step.text);
    }
}

TEST(StatusBar, ChangesTheTimeWithTheMinute) {
    sim::setWallClock(1425168000 + 37230); // 10:20:30
    harness::boot();
    UIStatusBarItemView *time = itemViews()[3];
    UIImage *before = [[time contentsImage] image];
    auto shown = [&] {
        render::Node node;
        node.bounds = {0, 0, 100, 20};
        [time appendDrawingsTo:node];
        return std::get<render::Image>(node.drawings.at(0)).bitmap->pixels;
    };
    auto first = shown();
    EXPECT_EQ(first, sim::state(before).image->bitmap->pixels);
    harness::wait(29);
    EXPECT_EQ(shown(), first);
    harness::wait(1.5);
    EXPECT_NE(shown(), first) << "10:21";
}

TEST(StatusBar, TakesTouchesInItsOwnHeightOnly) {
    harness::boot();
    UIWindow *window = [[UIApplication sharedApplication] statusBarWindow];
    EXPECT_TRUE([window hitTest:CGPointMake(180, 10) withEvent:nil]);
    EXPECT_FALSE([window hitTest:CGPointMake(180, 30) withEvent:nil]);
}

TEST(StatusBar, ARestyleDropsShadowsAndKeepsViews) {
    harness::boot();
    UIStatusBarItemView *time = itemViews()[3];
    CALayer *layer = [time layer];
    [layer setShadowOpacity:1];
    CGPathRef path = CGPathCreateWithRect([layer bounds], nullptr);
    [layer setShadowPath:path];
    CGPathRelease(path);
    [time setAlpha:0.5];
    sim::restyleStatusBar();
    EXPECT_EQ([layer shadowOpacity], 0);
    EXPECT_FALSE([layer shadowPath]);
    EXPECT_EQ([time alpha], 0.5f);
    EXPECT_EQ(itemViews()[3], time);
}

TEST(StatusBar, TurnsDarkOverAnApplication) {
    harness::boot();
    EXPECT_TRUE([[sim::statusBarStyle() tintColor] isEqual:[UIColor whiteColor]]);
    sim::openApplication("com.apple.mobilemail");
    harness::wait(1);
    EXPECT_TRUE([[sim::statusBarStyle() tintColor] isEqual:[UIColor blackColor]]);
    EXPECT_EQ(sim::visibleWindows().back(), [[UIApplication sharedApplication] statusBarWindow]);
    sim::clickHomeButton();
    harness::wait(1);
    EXPECT_TRUE([[sim::statusBarStyle() tintColor] isEqual:[UIColor whiteColor]]);
}

TEST(StatusBarLayout, StandsItemsFromTheEdgesInwards) {
    using enum StatusBarSide;
    struct Case {
        const char *name;
        std::vector<StatusBarSlot> slots;
        std::vector<double> lefts;
    };
    const Case cases[] = {
        {"nothing", {}, {}},
        {"left to right", {{left, 0, 30, 5}, {left, 1, 10, 5}}, {6.5, 41.5}},
        {"right to left", {{right, 0, 25, 0}, {right, 1, 30, 4}, {right, 10, 14, 6}}, {289.5, 255.5, 235.5}},
        {"order before position", {{right, 10, 14, 6}, {right, 0, 25, 0}}, {269.5, 289.5}},
        {"equal orders as they come", {{right, 10, 14, 6}, {right, 10, 20, 6}}, {300.5, 274.5}},
        {"empty ones take no room", {{left, 0, 0, 5}, {left, 1, 0, 5}, {left, 2, 10, 5}}, {6.5, 6.5, 6.5}},
        {"centred on the first", {{center, 0, 50, 0}, {center, 10, 8, 6}}, {135, 191}},
    };
    for (const auto &layout : cases)
        EXPECT_EQ(sim::layOutStatusBar(layout.slots, 320), layout.lefts) << layout.name;
}

TEST(StatusBar, GoesWhereAnApplicationDoesWithoutIt) {
    auto options = harness::applications();
    options.applications[2].statusBar = false; // org.example.1
    harness::boot(harness::profile("iPhone 6"), options);
    UIWindow *window = [[UIApplication sharedApplication] statusBarWindow];
    auto isTouched = [=] { return [sim::touchTarget({187, 10}) window] == window; };
    EXPECT_TRUE(isTouched());
    sim::openApplication("org.example.1");
    harness::wait(1);
    EXPECT_EQ(sim::presented([window layer]).opacity, 0);
    EXPECT_FALSE(isTouched()) << "the application has its touches";
    EXPECT_FALSE([[UIApplication sharedApplication] isStatusBarHidden])
        << "the home screen's own is not hidden";
    sim::openApplication("org.example.2");
    harness::wait(1);
    EXPECT_EQ(sim::presented([window layer]).opacity, 1);
    EXPECT_TRUE(isTouched());
}

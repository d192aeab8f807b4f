// The small pieces on which the panel stands: the colours of an image, the shimmer and the snapshot that a
// card shows.
#include "Tweak/Core/PanelViews.h"
#include "Tweak/Core/State.h"
#include "Tweak/Core/Support/UIImage+AverageColor.h"
#include "Tweak/Core/Support/UIView+Shimmer.h"
#include "Tweak/Panel/NameType.h"
#include "Tweak/Panel/Panel.h"
#include "Tweak/Start/HookTable.h"
#include "UIKit/UIKit+Further.h"

#include "Render/Renderer.hpp"
#include "SpringBoard/Harness.h"
#include "SpringBoard/Sandbox.h"
#include "UIKit/Application/ApplicationState.h"

#include <UIKit/UIKit.h>

#include <cmath>
#include <utility>

namespace {

class PanelSupport : public testing::Test {
protected:
    void SetUp() override {
        harness::boot(harness::profile("iPhone 5"), harness::applications(), [] { pendix::installHooks(); });
    }

    SpringBoard *springBoard() { return (SpringBoard *)[UIApplication sharedApplication]; }

    harness::Sandbox sandbox;
};

std::string hex(UIColor *color) {
    CGFloat red = 0, green = 0, blue = 0, alpha = 0;
    [color getRed:&red green:&green blue:&blue alpha:&alpha];
    char text[16];
    snprintf(text, sizeof text, "%02lx%02lx%02lx%02lx", lround(red * 255), lround(green * 255),
             lround(blue * 255), lround(alpha * 255));
    return text;
}

// A press waits for a tap to fail, which takes longer than it does itself; its own time is seen by nobody but
// the system.
TEST_F(PanelSupport, PressesCountAfterATenthOfASecond) {
    pendix::createBadgeList();
    sim::setBadge("org.example.1", 1);
    pendix::bringUpPanel(springBoard());
    NSArray *items = pendix::itemViews();
    ASSERT_EQ([items count], 1u);
    int presses = 0;
    for (UIGestureRecognizer *recognizer in [[items objectAtIndex:0] gestureRecognizers]) {
        if (![recognizer isKindOfClass:[UILongPressGestureRecognizer class]]) continue;
        EXPECT_EQ(static_cast<UILongPressGestureRecognizer *>(recognizer).minimumPressDuration, 0.1);
        ++presses;
    }
    EXPECT_EQ(presses, 1);
}

TEST_F(PanelSupport, TurnsDegreesIntoRadians) {
    struct {
        float degrees;
        double radians;
    } const cases[] = {{0, 0}, {180, M_PI}, {-90, -M_PI / 2}, {540, 3 * M_PI}};
    for (const auto &c : cases) {
        EXPECT_NEAR([springBoard() DegreesToRadians:c.degrees], c.radians, 1e-5);
        NSNumber *number = [springBoard() DegreesToNumber:c.degrees];
        EXPECT_NEAR([number doubleValue], c.radians, 1e-5);
        EXPECT_STREQ([number objCType], @encode(float));
    }
}

// The bytes of an image from a file begin with red, those of a drawing with blue; each is read its own way.
TEST_F(PanelSupport, ColoursOfAnImage) {
    struct {
        const char *what;
        uint32_t first, second; // halves, as alpha, red, green, blue
        const char *average, *merged;
    } const cases[] = {
        {"one colour", 0xff204060, 0xff204060, "204060ff", "204060ff"},
        {"grey", 0xff808080, 0xff808080, "808080ff", "808080ff"},
        {"two halves", 0xff000000, 0xfffefefe, "7f7f7fff", "7f7f7fff"},
        {"transparent", 0x00000000, 0x00000000, "000000ff", "000000ff"},
    };
    for (const auto &c : cases) {
        render::Bitmap bitmap(8, 4);
        for (size_t i = 0; i < bitmap.pixels.size(); ++i) bitmap.pixels[i] = i % 8 < 4 ? c.first : c.second;
        std::filesystem::create_directories(sandbox.path("/var/mobile"));
        std::ofstream(sandbox.path("/var/mobile/image.png"), std::ios::binary) << render::encodePng(bitmap);
        UIImage *image = [UIImage imageWithContentsOfFile:@"/var/mobile/image.png"];
        EXPECT_EQ(hex([image averageColor]), c.average) << c.what;
        CGFloat red = -1, green = -1, blue = -1, alpha = -1;
        [[image averageColor] getRed:&red green:&green blue:&blue alpha:&alpha];
        // Not even by a small part of a step.
        if (c.second == 0) EXPECT_EQ(red + green + blue, 0) << c.what;
        EXPECT_EQ(hex([image mergedColor]), c.merged) << c.what;
    }
}

// The darkest column of the view's middle row, in tenths of its width, and how bright it is there in
// hundredths; what somebody sees who looks at it.
std::pair<long, long> dimmest(CGRect frame) {
    static render::Renderer renderer;
    const render::Bitmap &picture = renderer.draw(sim::currentScene());
    const auto row = static_cast<int>(CGRectGetMidY(frame) * picture.scale);
    const auto left = static_cast<int>(frame.origin.x * picture.scale),
               width = static_cast<int>(frame.size.width * picture.scale);
    std::pair<long, long> found{-1, 100};
    for (int column = left; column < left + width; ++column) {
        const uint32_t pixel = picture.pixels.at(static_cast<size_t>(row * picture.width + column));
        const long brightness = lround((pixel & 0xff) / 2.55);
        if (brightness < found.second) found = {lround(10.0 * (column - left) / width), brightness};
    }
    return found;
}

// A dim band crosses the view from left to right within a second, and again every five.
TEST_F(PanelSupport, ADimBandSweepsAcrossUntilStopped) {
    const CGRect frame = CGRectMake(10, 20, 100, 40);
    UIWindow *window = [[UIWindow alloc] initWithFrame:CGRectMake(0, 0, 320, 568)];
    window.windowLevel = 5000;
    window.backgroundColor = [UIColor blackColor];
    window.hidden = NO;
    UIView *view = [[[UIView alloc] initWithFrame:frame] autorelease];
    view.backgroundColor = [UIColor whiteColor];
    [window addSubview:view];
    [view startShimmering];
    struct {
        double wait;
        long place; // tenths of the width; -1: nothing is dim
    } const moments[] = {{0.3125, 1}, {0.3125, 5}, {0.3125, 9}, {1.5, -1}, {2.5, -1}, {0.6875, 5}};
    NSArray *ends = [(CABasicAnimation *)[view.layer.mask animationForKey:@"shimmer"] toValue];
    for (NSUInteger i = 1; i < [ends count]; ++i)
        EXPECT_GT([[ends objectAtIndex:i] doubleValue], [[ends objectAtIndex:i - 1] doubleValue]);
    for (const auto &moment : moments) {
        harness::wait(moment.wait);
        const auto [place, brightness] = dimmest(frame);
        if (moment.place < 0) {
            EXPECT_GT(brightness, 97);
        } else {
            EXPECT_NEAR(place, moment.place, 1);
            EXPECT_NEAR(brightness, 10, 3);
        }
    }
    [view stopShimmering];
    EXPECT_GT(dimmest(frame).second, 97);
    window.hidden = YES;
    [window release];
}

TEST_F(PanelSupport, CardsShowTheFirstPortraitThatCanBeShown) {
    NSString *folder = @"/var/mobile/Library/Caches/Snapshots/org.example";
    auto found = [&] { return [springBoard() imageForOrientation:3 path:folder]; };
    EXPECT_EQ(found(), nil) << "no folder";
    sandbox.putImage("/var/mobile/Library/Caches/Snapshots/org.example/a-Landscape.png", 5, 5, 0xff000000);
    EXPECT_EQ(found(), nil) << "nothing upright";
    std::ofstream(sandbox.path("/var/mobile/Library/Caches/Snapshots/org.example/b-Portrait.png"))
        << "no image";
    EXPECT_EQ(found(), nil) << "nothing that is an image";
    sandbox.putImage("/var/mobile/Library/Caches/Snapshots/org.example/c-Portrait.png", 6, 7, 0xff000000);
    ASSERT_NE(found(), nil);
    EXPECT_EQ(found().size.height, 7) << "whatever the orientation asked for";
}

TEST_F(PanelSupport, ALongNameLosesItsMiddleAndOneOfTwoLinesItsEnd) {
    UILabel *name = [[[UILabel alloc] initWithFrame:CGRectZero] autorelease];
    name.text = @"A name that is far too long for its cell";
    UIFont *font = [UIFont fontWithName:@"HelveticaNeue" size:12];
    for (const auto &[lines, cut] :
         {std::pair{1, NSLineBreakByTruncatingMiddle}, std::pair{2, NSLineBreakByTruncatingTail}}) {
        pendix::placeName(name, {font, lines, static_cast<CGFloat>(15 * lines), 0}, 60, 60, 76);
        EXPECT_EQ(name.lineBreakMode, cut) << lines;
    }
}

} // namespace

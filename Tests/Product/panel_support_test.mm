// The small pieces on which the panel stands: the swipe's delegate, the strip's own knowledge of moving, the
// colours of an image, the shimmer and the snapshot that a card shows.
#include "Tweak/Core/Support/UIImage+AverageColor.h"
#include "Tweak/Core/Support/UIView+Shimmer.h"
#include "Tweak/Panel/NewUIScrollView.h"
#include "Tweak/Panel/Panel.h"
#include "Tweak/Start/HookTable.h"

#include "SpringBoard/Harness.h"
#include "SpringBoard/Sandbox.h"

#include <UIKit/UIKit.h>

#include <cmath>

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

TEST_F(PanelSupport, SwipesGoAlongWithScrolling) {
    swipeController *delegate = [[swipeController new] autorelease];
    UIPanGestureRecognizer *pan = [[UIPanGestureRecognizer new] autorelease],
                           *other = [[UIPanGestureRecognizer new] autorelease];
    EXPECT_TRUE([delegate isKindOfClass:[UISwipeGestureRecognizer class]]);
    EXPECT_TRUE([delegate gestureRecognizerShouldBegin:pan]);
    EXPECT_TRUE([delegate gestureRecognizer:pan shouldRecognizeSimultaneouslyWithGestureRecognizer:other]);
    EXPECT_TRUE([delegate gestureRecognizer:pan shouldReceiveTouch:nil]);
    id answers = delegate; // the last two are a scroll view's questions
    UIScrollView *scroller = answers;
    EXPECT_TRUE([scroller touchesShouldBegin:nil withEvent:nil inContentView:nil]);
    EXPECT_FALSE([scroller touchesShouldCancelInContentView:nil]);
}

TEST_F(PanelSupport, StripKnowsWhetherItMoves) {
    NewUIScrollView *strip = [[[NewUIScrollView alloc] initWithFrame:CGRectMake(0, 0, 100, 50)] autorelease];
    EXPECT_EQ(strip.delegate, (id)strip);
    EXPECT_FALSE([strip scrolling]);
    [strip scrollViewDidScroll:strip];
    EXPECT_TRUE([strip scrolling]);
    [strip scrollViewDidEndDragging:strip willDecelerate:YES];
    EXPECT_FALSE([strip scrolling]) << "whether it goes on or not";
    [strip scrollViewDidScroll:strip];
    [strip scrollViewDidEndDecelerating:strip];
    EXPECT_FALSE([strip scrolling]);
    strip.contentSize = CGSizeMake(300, 50);
    strip.contentOffset = CGPointMake(30, 0);
    [strip contentDidChange];
    EXPECT_FALSE([strip scrolling]) << "nothing holds it";
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
        EXPECT_EQ(hex([image mergedColor]), c.merged) << c.what;
    }
}

TEST_F(PanelSupport, ShimmersUntilStopped) {
    UIView *view = [[[UIView alloc] initWithFrame:CGRectMake(10, 20, 80, 40)] autorelease];
    [view startShimmering];
    CAGradientLayer *band = (CAGradientLayer *)view.layer.mask;
    ASSERT_TRUE([band isKindOfClass:[CAGradientLayer class]]);
    EXPECT_TRUE(CGRectEqualToRect(band.frame, CGRectMake(-80, 0, 240, 40)));
    EXPECT_TRUE(CGPointEqualToPoint(band.startPoint, CGPointMake(0, 0.5)));
    EXPECT_TRUE(CGPointEqualToPoint(band.endPoint, CGPointMake(2.5, 0.525)));
    EXPECT_EQ([band.colors count], 3u);
    CABasicAnimation *sweep = (CABasicAnimation *)[band animationForKey:@"shimmer"];
    EXPECT_EQ(sweep.duration, 5);
    EXPECT_TRUE(std::isinf(sweep.repeatCount));
    EXPECT_EQ(harness::text(sweep.keyPath), "locations");
    [view stopShimmering];
    EXPECT_EQ(view.layer.mask, nil);
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

} // namespace

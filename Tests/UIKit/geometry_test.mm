// Proves where views are: frames under transforms and anchor points, and the way from one view's coordinates
// to another's.
#include "Looks.h"

#include "UIKit/UIKit+Further.h"

#include <cmath>

using namespace harness;

namespace {

const CGAffineTransform kIdentity = CGAffineTransformIdentity;
CGAffineTransform turned(double degrees) { return CGAffineTransformMakeRotation(degrees * M_PI / 180); }
CGAffineTransform scaled(double factor) { return CGAffineTransformMakeScale(factor, factor); }

UIView *sized(CGFloat width, CGFloat height) {
    return [[[UIView alloc] initWithFrame:CGRectMake(0, 0, width, height)] autorelease];
}

} // namespace

TEST(Geometry, TheFrameIsTheUprightBoxAroundTheTransformedBounds) {
    // Bounds of 100 by 50; the anchor stands at (200, 100).
    struct {
        const char *what;
        CGPoint anchor;
        CGAffineTransform transform;
        const char *frame;
    } const cases[] = {
        {"as it is", {0.5, 0.5}, kIdentity, "150 75 100 50"},
        {"twice as large", {0.5, 0.5}, scaled(2), "100 50 200 100"},
        {"a quarter turn", {0.5, 0.5}, turned(90), "175 50 50 100"},
        {"half a turn", {0.5, 0.5}, turned(180), "150 75 100 50"},
        {"an eighth", {0.5, 0.5}, turned(45), "146.967 46.967 106.066 106.066"},
        {"moved", {0.5, 0.5}, CGAffineTransformMakeTranslation(10, 20), "160 95 100 50"},
        {"mirrored", {0.5, 0.5}, CGAffineTransformMakeScale(-1, 1), "150 75 100 50"},
        {"held at the corner", {0, 0}, kIdentity, "200 100 100 50"},
        {"turned about the corner", {0, 0}, turned(90), "150 100 50 100"},
        {"turned about the lower edge", {0.5, 1}, turned(90), "200 50 50 100"},
        {"held outside", {2, 0}, kIdentity, "0 100 100 50"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        UIView *view = sized(100, 50);
        [[view layer] setAnchorPoint:c.anchor];
        [view setCenter:CGPointMake(200, 100)];
        [view setTransform:c.transform];
        EXPECT_EQ(text([view frame]), c.frame);
        EXPECT_EQ(text([view center]), "200 100");
        EXPECT_EQ(text([view bounds]), "0 0 100 50");
        CGRect shifted = [view bounds];
        shifted.origin = CGPointMake(30, 40);
        [view setBounds:shifted];
        EXPECT_EQ(text([view frame]), c.frame) << "what the bounds begin with moves the content alone";
    }
}

TEST(Geometry, AFrameThatIsSetComesBack) {
    struct {
        const char *what;
        CGPoint anchor;
        CGAffineTransform transform;
        const char *center, *size;
    } const cases[] = {
        {"as it is", {0.5, 0.5}, kIdentity, "40 60", "60 80"},
        {"twice as large", {0.5, 0.5}, scaled(2), "40 60", "30 40"},
        {"a quarter turn", {0.5, 0.5}, turned(90), "40 60", "80 60"},
        {"a quarter back", {0.5, 0.5}, turned(-90), "40 60", "80 60"},
        {"half a turn", {0.5, 0.5}, turned(-180), "40 60", "60 80"},
        {"moved", {0.5, 0.5}, CGAffineTransformMakeTranslation(10, 20), "30 40", "60 80"},
        {"held at the lower edge", {0.5, 1}, kIdentity, "40 100", "60 80"},
        {"and turned", {0.5, 1}, turned(90), "10 60", "80 60"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        UIView *view = sized(100, 50);
        [[view layer] setAnchorPoint:c.anchor];
        [view setTransform:c.transform];
        [view setFrame:CGRectMake(10, 20, 60, 80)];
        EXPECT_EQ(text([view frame]), "10 20 60 80");
        EXPECT_EQ(text([view center]), c.center);
        EXPECT_EQ(text([view bounds].size), c.size);
    }
}

TEST(Geometry, ChangesMoveWhatTheySay) {
    struct {
        const char *what;
        void (*change)(UIView *);
        const char *frame, *center;
    } const cases[] = {
        {"the centre", [](UIView *v) { [v setCenter:CGPointMake(0, 0)]; }, "-50 -25 100 50", "0 0"},
        {"the size, about the centre", [](UIView *v) { [v setBounds:CGRectMake(0, 0, 20, 20)]; },
         "50 25 20 20", "60 35"},
        {"the anchor, which stays where it is",
         [](UIView *v) { [[v layer] setAnchorPoint:CGPointMake(0, 0)]; }, "60 35 100 50", "60 35"},
        {"the frame's place", [](UIView *v) { [v setFrame:CGRectMake(1, 2, 100, 50)]; }, "1 2 100 50",
         "51 27"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        UIView *view = sized(100, 50);
        [view setFrame:CGRectMake(10, 10, 100, 50)];
        c.change(view);
        EXPECT_EQ(text([view frame]), c.frame);
        EXPECT_EQ(text([view center]), c.center);
    }
}

TEST(Geometry, PointsAndRectanglesGoFromViewToView) {
    // The outer view's content is shifted by (10, 20); the inner one stands at (30, 40) in it, 50 by 50, its
    // centre at (55, 65).
    struct {
        const char *what;
        CGAffineTransform transform;
        const char *point, *rect; // of (5, 5) and of (0, 0; 10, 20), in the window
    } const cases[] = {
        {"as it is", kIdentity, "75 85", "70 80 10 20"},
        {"twice as large", scaled(2), "55 65", "45 55 20 40"},
        {"a quarter turn", turned(90), "115 85", "100 80 20 10"},
        {"half a turn", turned(180), "115 125", "110 110 10 20"},
    };
    UIWindow *window = makeWindow();
    UIView *outer = addView(window, CGRectMake(50, 60, 200, 100));
    [outer setBounds:CGRectMake(10, 20, 200, 100)];
    UIView *inner = addView(outer, CGRectMake(30, 40, 50, 50));
    UIView *aside = addView(window, CGRectMake(5, 6, 10, 10));
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        [inner setTransform:c.transform];
        CGPoint point = CGPointMake(5, 5), there = [inner convertPoint:point toView:window];
        CGRect rect = CGRectMake(0, 0, 10, 20);
        EXPECT_EQ(text(there), c.point);
        EXPECT_EQ(text([inner convertPoint:point toView:nil]), c.point) << "nil is the window";
        EXPECT_EQ(text([window convertPoint:point fromView:inner]), c.point);
        EXPECT_EQ(text([inner convertPoint:there fromView:window]), "5 5") << "and back";
        EXPECT_EQ(text([inner convertPoint:there fromView:nil]), "5 5");
        EXPECT_EQ(text([inner convertRect:rect toView:nil]), c.rect);
        CGPoint beside = [inner convertPoint:point toView:aside];
        EXPECT_EQ(text(beside), text(CGPointMake(there.x - 5, there.y - 6)));
        EXPECT_EQ(text([inner convertRect:[inner convertRect:rect toView:aside] fromView:aside]),
                  "0 0 10 20");
    }
    EXPECT_EQ(text([inner convertPoint:CGPointMake(3, 4) toView:inner]), "3 4");
}

TEST(Geometry, SubviewsFollowTheSizeAsTheirMasksSay) {
    // At (10, 20; 30, 40) in a view of 100 by 100 that becomes 200 by 50.
    struct {
        const char *what;
        UIViewAutoresizing mask;
        const char *frame;
    } const cases[] = {
        {"nothing", UIViewAutoresizingNone, "10 20 30 40"},
        {"width", UIViewAutoresizingFlexibleWidth, "10 20 130 40"},
        {"left", UIViewAutoresizingFlexibleLeftMargin, "110 20 30 40"},
        {"right", UIViewAutoresizingFlexibleRightMargin, "10 20 30 40"},
        {"top", UIViewAutoresizingFlexibleTopMargin, "10 -30 30 40"},
        {"both sides in proportion",
         UIViewAutoresizingFlexibleLeftMargin | UIViewAutoresizingFlexibleRightMargin, "24.286 20 30 40"},
        {"all of the height",
         UIViewAutoresizingFlexibleTopMargin | UIViewAutoresizingFlexibleHeight |
             UIViewAutoresizingFlexibleBottomMargin,
         "10 10 30 20"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        UIView *outer = sized(100, 100), *inner = addView(outer, CGRectMake(10, 20, 30, 40));
        [inner setAutoresizingMask:c.mask];
        [outer setFrame:CGRectMake(5, 5, 200, 50)];
        EXPECT_EQ(text([inner frame]), c.frame);
        [outer setAutoresizesSubviews:NO];
        [outer setFrame:CGRectMake(5, 5, 1, 1)];
        EXPECT_EQ(text([inner frame]), c.frame);
    }
}

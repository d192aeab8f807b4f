// Proves which file an image comes from, how large it is, and how image views show it.
#include "Looks.h"

#include "Runtime/Process/Device.hpp"
#include "SpringBoard/Sandbox.h"
#include "UIKit/Images/ImageState.h"
#include "UIKit/Images/UIImage+Further.h"
#include "UIKit/Views/ViewState.h"

#include <UIKit/UIImageView.h>

using namespace harness;

namespace {

constexpr char kFolder[] = "/System/Library/Frameworks/UIKit.framework/";
constexpr uint32_t kRed = 0xffff0000, kGreen = 0xff00ff00, kBlue = 0xff0000ff;

// An image of one colour; its size is in points.
UIImage *plain(CGSize size, uint32_t color, double scale = 1) {
    auto bitmap = std::make_shared<render::Bitmap>(int(size.width * scale), int(size.height * scale), scale);
    for (auto &pixel : bitmap->pixels) pixel = color;
    return sim::makeImage(bitmap);
}

UIImageView *addImageView(UIView *superview, CGRect frame, UIImage *image) {
    UIImageView *view = [[[UIImageView alloc] initWithFrame:frame] autorelease];
    [view setImage:image];
    [superview addSubview:view];
    return view;
}

} // namespace

TEST(Images, ComeFromTheFileOfTheScreensScale) {
    // Each file is a square of another number of pixels.
    struct {
        const char *what;
        double screen;
        std::vector<std::pair<const char *, int>> files;
        NSString *name;
        const char *size; // points, and pixels a point
    } const cases[] = {
        {"the right one of three",
         2,
         {{"a.png", 10}, {"a@2x.png", 22}, {"a@3x.png", 36}},
         @"a.png",
         "11 11 @ 2"},
        {"on the largest phone",
         3,
         {{"a.png", 10}, {"a@2x.png", 22}, {"a@3x.png", 36}},
         @"a.png",
         "12 12 @ 3"},
        {"on an old tablet", 1, {{"a.png", 10}, {"a@2x.png", 22}, {"a@3x.png", 36}}, @"a.png", "10 10 @ 1"},
        {"by a name without extension", 2, {{"a.png", 10}, {"a@2x.png", 22}}, @"a", "11 11 @ 2"},
        {"of that there is one only", 2, {{"a.png", 10}}, @"a", "10 10 @ 1"},
        {"the same on an old tablet", 1, {{"a.png", 10}, {"a@2x.png", 22}}, @"a", "10 10 @ 1"},
        {"the smaller one", 3, {{"a@2x.png", 22}}, @"a", "11 11 @ 2"},
        {"the larger one", 1, {{"a@2x.png", 22}}, @"a", "11 11 @ 2"},
        {"the one that is named", 1, {{"a.png", 10}, {"a@2x.png", 22}}, @"a@2x.png", "11 11 @ 2"},
        {"a name that only begins alike", 2, {{"ab@2x.png", 22}}, @"a", "none"},
        {"no file", 2, {}, @"a", "none"},
        {"no name", 2, {{"a.png", 10}}, @"", "none"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        Sandbox sandbox;
        sim::device().scale = c.screen;
        for (auto [name, side] : c.files) sandbox.putImage(kFolder + std::string(name), side, side, kRed);
        NSString *path = [@(kFolder) stringByAppendingString:c.name];
        UIImage *image =
            [c.name length] ? [UIImage imageWithContentsOfFile:path] : [UIImage imageNamed:c.name];
        EXPECT_EQ(image ? text([image size]) + " @ " + text([image scale]) : "none", c.size);
    }
}

TEST(Images, ByNameAreReadOnce) {
    Sandbox sandbox;
    sandbox.putImage(kFolder + std::string("a@2x.png"), 20, 20, kRed);
    UIImage *image = [UIImage imageNamed:@"a"];
    NSString *path = [@(kFolder) stringByAppendingString:@"a@2x.png"];
    ASSERT_TRUE(image && [UIImage imageWithContentsOfFile:path]);
    std::filesystem::remove(sandbox.path([path UTF8String]));
    EXPECT_EQ([UIImage imageNamed:@"a"], image);
    EXPECT_EQ([UIImage imageWithContentsOfFile:path], nil);
    EXPECT_EQ([UIImage imageNamed:@"b"], nil);
    sandbox.putImage(kFolder + std::string("b.png"), 5, 5, kRed);
    EXPECT_EQ(text([[UIImage imageNamed:@"b"] size]), "5 5") << "that one was missing is not remembered";
}

TEST(Images, OfPlainPixelsHaveOneToAPoint) {
    UIImage *image = plain({10, 5}, kRed, 2);
    UIImage *again = [UIImage imageWithCGImage:[image CGImage]];
    EXPECT_EQ(text([image size]), "10 5");
    EXPECT_EQ(text([again size]), "20 10");
    EXPECT_EQ([again scale], 1);
    EXPECT_EQ(CGImageGetWidth([again CGImage]), 20u);
    EXPECT_EQ([UIImage imageWithCGImage:nullptr], nil);
}

TEST(ImageViews, PlaceTheImageAsTheContentModeSays) {
    // An image of 40 by 20 in a view of 100 by 60.
    struct {
        UIViewContentMode mode;
        const char *rect;
    } const cases[] = {
        {UIViewContentModeScaleToFill, "0 0 100 60"},
        {UIViewContentModeScaleAspectFit, "0 5 100 50"},
        {UIViewContentModeScaleAspectFill, "-10 0 120 60"},
        {UIViewContentModeRedraw, "0 0 100 60"},
        {UIViewContentModeCenter, "30 20 40 20"},
        {UIViewContentModeTop, "30 0 40 20"},
        {UIViewContentModeBottom, "30 40 40 20"},
        {UIViewContentModeLeft, "0 20 40 20"},
        {UIViewContentModeRight, "60 20 40 20"},
        {UIViewContentModeTopLeft, "0 0 40 20"},
        {UIViewContentModeTopRight, "60 0 40 20"},
        {UIViewContentModeBottomLeft, "0 40 40 20"},
        {UIViewContentModeBottomRight, "60 40 40 20"},
    };
    UIImageView *view = addImageView(makeWindow(), CGRectMake(100, 100, 100, 60), plain({40, 20}, kRed, 2));
    EXPECT_EQ([view contentMode], UIViewContentModeScaleToFill);
    for (const auto &c : cases) {
        SCOPED_TRACE(c.rect);
        [view setContentMode:c.mode];
        render::Node node;
        node.bounds = {0, 0, 100, 60};
        [view appendDrawingsTo:node];
        render::Rect rect = std::get<render::Image>(node.drawings.at(0)).rect;
        EXPECT_EQ(text(CGRectMake(rect.x, rect.y, rect.width, rect.height)), c.rect);
    }
    // As it is seen.
    [view setContentMode:UIViewContentModeScaleAspectFill];
    EXPECT_EQ(colorAt({92, 130}), "red");
    [view setClipsToBounds:YES];
    EXPECT_EQ(colorAt({92, 130}), "black");
}

TEST(ImageViews, TakeTheirSizeFromTheImage) {
    UIImageView *view = [[[UIImageView alloc] initWithImage:plain({40, 20}, kRed, 2)] autorelease];
    EXPECT_EQ(text([view frame]), "0 0 40 20");
    [view setFrame:CGRectMake(5, 6, 1, 1)];
    [view setImage:plain({10, 10}, kRed)];
    EXPECT_EQ(text([view frame]), "5 6 1 1") << "but only once";
    [view sizeToFit];
    EXPECT_EQ(text([view frame]), "5 6 10 10");
    EXPECT_EQ(text([[[[UIImageView alloc] initWithImage:nil] autorelease] frame]), "0 0 0 0");
}

TEST(ImageViews, PaintTemplatesInTheirTint) {
    UIWindow *window = makeWindow();
    UIView *outer = addView(window, CGRectMake(0, 0, 100, 100));
    UIImage *red = plain({20, 20}, kRed);
    UIImageView *view = addImageView(outer, CGRectMake(0, 0, 20, 20), red);
    auto show = [&](UIImageRenderingMode mode) { [view setImage:[red imageWithRenderingMode:mode]]; };
    auto seen = [] { return colorAt({10, 10}); };
    [outer setTintColor:[UIColor greenColor]];
    EXPECT_EQ(seen(), "red");
    show(UIImageRenderingModeAlwaysTemplate);
    EXPECT_EQ(seen(), "green") << "inherited";
    [view setTintColor:[UIColor blueColor]];
    EXPECT_EQ(seen(), "blue");
    [view setTintColor:nil];
    [outer setTintColor:[UIColor whiteColor]];
    EXPECT_EQ(seen(), "white");
    [outer setTintColor:nil];
    EXPECT_EQ(seen(), "#007aff") << "nobody has one";
    show(UIImageRenderingModeAlwaysOriginal);
    EXPECT_EQ(seen(), "red");
    EXPECT_EQ([red renderingMode], UIImageRenderingModeAutomatic) << "the first image is as it was";
}

TEST(ImageViews, StretchTheMiddleBetweenTheCaps) {
    // Red corners, green edges, a blue middle; each part is four points wide.
    auto bitmap = std::make_shared<render::Bitmap>(12, 12);
    for (int i = 0; i < 144; ++i) {
        bool sideways = i % 12 / 4 != 1, upright = i / 48 != 1;
        bitmap->pixels[static_cast<size_t>(i)] = sideways && upright   ? kRed
                                                 : sideways || upright ? kGreen
                                                                       : kBlue;
    }
    UIImage *image = [sim::makeImage(bitmap) resizableImageWithCapInsets:{4, 4, 4, 4}];
    EXPECT_EQ(text([image size]), "12 12");
    UIImageView *view = addImageView(makeWindow(), CGRectMake(0, 0, 60, 30), image);
    struct {
        CGPoint place;
        const char *seen;
    } const places[] = {{{2, 2}, "red"},    {{58, 28}, "red"}, {{30, 2}, "green"}, {{2, 15}, "green"},
                        {{30, 15}, "blue"}, {{6, 6}, "blue"},  {{54, 24}, "blue"}};
    for (const auto &place : places) EXPECT_EQ(colorAt(place.place), place.seen) << text(place.place);
    // The caps outlast a change of the other kind, and are painted as well.
    [view setImage:[image imageWithRenderingMode:UIImageRenderingModeAlwaysTemplate]];
    [view setTintColor:[UIColor whiteColor]];
    EXPECT_EQ([[view image] capInsets].left, 4);
    EXPECT_EQ(colorAt({30, 15}), "white");
}

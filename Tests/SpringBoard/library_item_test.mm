// Proves what the status-bar library does with its items: what is set shows at once, a wrong use raises as it
// does on a phone, and images are found under the names that the library looks for.
#include "Harness.h"
#include "Sandbox.h"

#include "SpringBoard/StatusLibrary/LSStatusBarItem+Further.h"
#include "UIKit/CoreGraphics/CGGeometry+Further.h"
#include "UIKit/Images/ImageState.h"
#include "UIKit/StatusBar/StatusBarState.h"

#include <StatusBar/LSStatusBarItem.h>
#include <UIKit/UIStatusBar.h>

namespace {

using Lines = std::vector<std::string>;

constexpr StatusBarAlignment kLeft = 1, kRight = 2, kCenter = 4;
const std::string kIdentifier = "org.example.item";
const std::string kImages = "/System/Library/Frameworks/UIKit.framework/";

LSStatusBarItem *makeItem(StatusBarAlignment alignment = kRight) {
    return [[[LSStatusBarItem alloc] initWithIdentifier:@"org.example.item" alignment:alignment] autorelease];
}

UIStatusBarItemView *itemView() {
    return static_cast<UIStatusBarItemView *>(sim::statusBarItemView(kIdentifier));
}

std::string raised(void (^action)(void)) {
    @try {
        action();
    } @catch (NSException *exception) {
        return harness::text([exception name]);
    }
    return "";
}

const render::Bitmap *shownBitmap() {
    UIImage *image = [[itemView() contentsImage] image];
    return image ? sim::state(image).image->bitmap.get() : nullptr;
}

} // namespace

TEST(LibraryItems, ShowWhatIsSetAtOnce) {
    harness::Sandbox sandbox;
    sandbox.putImage(kImages + "Black_Thing@2x.png", 28, 40, 0xff000000);
    harness::boot();
    LSStatusBarItem *item = makeItem();
    EXPECT_TRUE([item isVisible]) << "until it is set";
    EXPECT_FALSE(itemView()) << "nothing is shown before something is set";
    [item setImageName:@"Thing"];
    ASSERT_TRUE(itemView());
    EXPECT_TRUE([itemView() window]);
    EXPECT_EQ([itemView() frame].size.width, 14);
    EXPECT_EQ(harness::text([[itemView() item] indicatorName]), "Thing");
    EXPECT_EQ(harness::text(NSStringFromClass([itemView() class])), "UIStatusBarCustomItemView");
    [item setVisible:NO];
    EXPECT_FALSE(itemView());
    EXPECT_FALSE([item isVisible]);
    [item setVisible:YES];
    EXPECT_TRUE(itemView());
    EXPECT_EQ(harness::events({"statusbar", "missing_file"}),
              (Lines{"statusbar property=imageName value=Thing", "statusbar property=visible value=false",
                     "statusbar property=visible value=true"}));
    [item setVisible:YES];
    [item setImageName:@"Thing"];
    EXPECT_EQ(harness::events({"statusbar"}), Lines{}) << "nothing changed";
}

TEST(LibraryItems, StandBesideTheSystemsOwn) {
    harness::Sandbox sandbox;
    sandbox.putImage(kImages + "Black_Thing@2x.png", 28, 40, 0xff000000);
    harness::boot();
    [makeItem() setImageName:@"Thing"];
    CGFloat leftmost = 400;
    for (UIView *view in [[itemView() superview] subviews])
        if (view != itemView() && [view frame].origin.x > 250)
            leftmost = std::min(leftmost, [view frame].origin.x);
    EXPECT_LT(CGRectGetMaxX([itemView() frame]), leftmost) << "left of the battery and its level";
    EXPECT_GT(CGRectGetMaxX([itemView() frame]), leftmost - 10);
}

TEST(LibraryItems, FindTheirImages) {
    harness::Sandbox sandbox;
    constexpr uint32_t kWhite = 0xffffffff, kGreen = 0xff00ff00;
    sandbox.putImage(kImages + "Black_Template@2x.png", 20, 40, 0xff000000);
    sandbox.putImage(kImages + "White_Coloured_Color@2x.png", 20, 40, kGreen);
    sandbox.putImage(kImages + "Black_Coloured@2x.png", 20, 40, 0xff000000);
    sandbox.putImage(kImages + "Black_Threefold@3x.png", 30, 60, 0xff000000);
    harness::boot();
    LSStatusBarItem *item = makeItem();
    struct Case {
        const char *name;
        uint32_t pixel; // 0: no image
        double width;
        Lines events;
    };
    const Case cases[] = {
        {"Template", kWhite, 10, {}},
        {"Coloured", kGreen, 10, {}},
        {"Threefold", kWhite, 10, {}},
        {"Missing", 0, 0, {"missing_file path=" + kImages + "Black_Missing@2x.png"}},
    };
    for (const auto &image : cases) {
        SCOPED_TRACE(image.name);
        [item setImageName:[NSString stringWithUTF8String:image.name]];
        ASSERT_TRUE(itemView());
        EXPECT_EQ([itemView() frame].size.width, image.width);
        EXPECT_EQ(harness::events({"missing_file"}), image.events);
        if (image.pixel) EXPECT_EQ(shownBitmap()->pixels.at(0), image.pixel);
        if (!image.pixel) EXPECT_FALSE([itemView() contentsImage]);
    }
    [item setImageName:@"Template"];
    sim::setStatusBarStyle(sim::StatusBarStyle::darkContent);
    EXPECT_EQ(shownBitmap()->pixels.at(0), 0xff000000) << "a template takes the bar's colour";
}

TEST(LibraryItems, KeepAnImageForTheLifeOfTheProcess) {
    harness::Sandbox sandbox;
    sandbox.putImage(kImages + "Black_Thing@2x.png", 20, 40, 0xff000000);
    harness::boot();
    [makeItem() setImageName:@"Thing"];
    sandbox.putImage(kImages + "Black_Thing@2x.png", 60, 40, 0xff000000);
    sim::restyleStatusBar();
    EXPECT_EQ([itemView() frame].size.width, 10);
}

TEST(LibraryItems, ShareTheirPropertiesByIdentifier) {
    harness::boot();
    LSStatusBarItem *one = nil, *two = nil;
    @autoreleasepool {
        one = [makeItem() retain];
        two = [makeItem() retain];
    }
    [one setImageName:@"Thing"];
    EXPECT_EQ(harness::text([two imageName]), "Thing");
    [two setVisible:NO];
    EXPECT_FALSE([one isVisible]);
    [one setVisible:YES];
    [one release];
    EXPECT_TRUE(itemView());
    EXPECT_TRUE(sim::statusBarItem(kIdentifier)["present"].boolean());
    [two release];
    EXPECT_FALSE(itemView());
    EXPECT_FALSE(sim::statusBarItem(kIdentifier)["present"].boolean());
}

TEST(LibraryItems, RefuseWrongUse) {
    harness::boot();
    makeItem();
    const std::string kRefusal = "NSInternalInconsistencyException";
    EXPECT_EQ(raised(^{ [[LSStatusBarItem alloc] initWithIdentifier:nil alignment:kRight]; }), kRefusal);
    EXPECT_EQ(raised(^{ [[LSStatusBarItem alloc] initWithIdentifier:@"org.example.other" alignment:0]; }),
              kRefusal);
    EXPECT_EQ(raised(^{ makeItem(kLeft); }), kRefusal);
    LSStatusBarItem *middle = [[[LSStatusBarItem alloc] initWithIdentifier:@"org.example.middle"
                                                                 alignment:kCenter] autorelease];
    EXPECT_EQ(raised(^{ [middle setImageName:@"Thing"]; }), kRefusal);
    EXPECT_EQ(raised(^{ makeItem(); }), "");
}

TEST(LibraryItems, WaitForAnUpdateWhenToldTo) {
    harness::boot();
    LSStatusBarItem *item = makeItem();
    [item setManualUpdate:YES];
    [item setImageName:@"Thing"];
    EXPECT_FALSE(itemView());
    [item update];
    EXPECT_TRUE(itemView());
}

TEST(LibraryItems, SetBeforeTheBarExistsShowWithIt) {
    harness::boot(harness::profile("iPhone 6"), harness::applications(),
                  [] { [makeItem() setImageName:@"Thing"]; });
    EXPECT_TRUE([itemView() window]);
}

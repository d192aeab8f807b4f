// Proves what others learn from icons: which one belongs to an identifier, what its image is, and that
// applications without a drawing of their own can be told by the placeholder's pixels.
#include "Harness.h"

#include "UIKit/Images/IconColors.hpp"
#include "UIKit/Images/ImageState.h"

#include <UIKit/UIKit.h>

#include <set>

namespace {

NSData *pixelsOf(const char *identifier) {
    SBIconModel *model = [[SBIconController sharedInstance] model];
    SBIcon *icon = [model expectedIconForDisplayIdentifier:[NSString stringWithUTF8String:identifier]];
    SBIconView *view = [[SBIconViewMap homescreenMap] iconViewForIcon:icon];
    return UIImagePNGRepresentation([[view _iconImageView] contentsImage]);
}

sim::SharedOptions withBareOnes() {
    auto options = harness::applications();
    options.applications.push_back(
        {.identifier = "org.example.bare", .name = "Bare", .folder = {}, .icon = false});
    options.applications.push_back(
        {.identifier = "org.example.plain", .name = "Plain", .folder = {}, .icon = false});
    return options;
}

} // namespace

TEST(Icons, WithoutADrawingShareThePlaceholdersPixels) {
    harness::boot(harness::profile("iPhone 6"), withBareOnes());
    NSData *placeholder = pixelsOf("com.apple.WebViewService");
    ASSERT_GT([placeholder length], 0u);
    struct Case {
        const char *identifier;
        bool same;
    };
    const Case cases[] = {{"org.example.bare", true},
                          {"org.example.plain", true},
                          {"com.apple.mobilemail", false},
                          {"org.example.1", false},
                          {"org.example.chat", false}};
    for (const auto &icon : cases)
        EXPECT_EQ([pixelsOf(icon.identifier) isEqualToData:placeholder] == YES, icon.same) << icon.identifier;
}

TEST(Icons, AreRoundedImagesAtTheScreensScale) {
    struct Case {
        const char *device;
        int side;
        double scale;
    };
    // One device a process; the others have a case of their own below.
    const Case device{"iPhone 6 Plus", 180, 3};
    harness::boot(harness::profile(device.device));
    UIImage *image = [[harness::iconView("org.example.1") _iconImageView] contentsImage];
    const auto &bitmap = *sim::state(image).image->bitmap;
    EXPECT_EQ([image size].width, 60);
    EXPECT_EQ([image scale], device.scale);
    ASSERT_EQ(bitmap.width, device.side);
    ASSERT_EQ(bitmap.height, device.side);
    auto alpha = [&](int x, int y) { return bitmap.pixels[static_cast<size_t>(y * bitmap.width + x)] >> 24; };
    for (int x : {0, bitmap.width - 1})
        for (int y : {0, bitmap.height - 1}) EXPECT_EQ(alpha(x, y), 0u) << "corners are off";
    EXPECT_EQ(alpha(bitmap.width / 2, 0), 255u);
    EXPECT_EQ(alpha(bitmap.width / 2, bitmap.height / 2), 255u);
}

TEST(Icons, OnTabletsAreLarger) {
    harness::boot(harness::profile("iPad 2"));
    EXPECT_EQ([SBIconView defaultIconSize].width, 76);
    EXPECT_GT([SBIconView defaultIconSize].height, 76) << "with room for the label";
    EXPECT_EQ([[[harness::iconView("org.example.1") _iconImageView] contentsImage] size].width, 76);
}

TEST(Icons, AreFoundByTheirIdentifier) {
    harness::boot(harness::profile("iPhone 6"), withBareOnes());
    SBIconModel *model = [[SBIconController sharedInstance] model];
    SBIconViewMap *map = [SBIconViewMap homescreenMap];
    struct Case {
        NSString *identifier;
        bool exists, inWindow, onHome;
    };
    const Case cases[] = {
        {@"com.apple.mobilemail", true, true, true}, {@"org.example.1", true, true, true},
        {@"org.example.chat", true, false, true},    {@"com.apple.WebViewService", true, false, false},
        {@"org.example.none", false, false, false},  {nil, false, false, false}};
    for (const auto &row : cases) {
        SCOPED_TRACE(harness::text(row.identifier));
        SBIcon *icon = [model expectedIconForDisplayIdentifier:row.identifier];
        EXPECT_EQ(icon != nil, row.exists);
        EXPECT_EQ([model leafIconForIdentifier:row.identifier], icon);
        SBIconView *view = [map mappedIconViewForIcon:icon];
        EXPECT_EQ(view, [map iconViewForIcon:icon]);
        EXPECT_EQ(view != nil, row.exists);
        EXPECT_EQ([view window] != nil, row.inWindow);
        EXPECT_EQ(harness::iconView(harness::text(row.identifier)) != nil, row.onHome);
        EXPECT_EQ([view icon], icon);
        EXPECT_EQ(harness::text([icon nodeIdentifier]), row.exists ? harness::text(row.identifier) : "");
    }
}

TEST(Icons, KeepTheirColours) {
    std::set<double> reds;
    for (int i = 0; i < 40; ++i) {
        std::string identifier = "org.example." + std::to_string(i);
        EXPECT_EQ(&sim::iconColors(identifier), &sim::iconColors(identifier));
        reds.insert(sim::iconColors(identifier).top.red);
    }
    EXPECT_GT(reds.size(), 5u) << "identifiers that differ in the last digit still spread";
}

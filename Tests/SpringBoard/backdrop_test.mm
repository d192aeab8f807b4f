// Proves that the blurring material asks the renderer for what its settings say, and sizes itself as it was
// told.
#include "Harness.h"

#include "UIKit/UIKit+Further.h"
#include "UIKit/Views/ViewState.h"

#include <UIKit/UIKit.h>

#include <objc/runtime.h>

namespace {

render::Backdrop drawn(UIView *view) {
    render::Node node;
    node.bounds = {0, 0, 10, 10};
    [view appendDrawingsTo:node];
    return node.backdrop.value_or(render::Backdrop{});
}

} // namespace

TEST(Backdrop, StylesDiffer) {
    struct Case {
        const char *className;
        NSInteger style;
        bool dark;
    };
    const Case cases[] = {{"_UIBackdropViewSettingsDark", 2030, true},
                          {"_UIBackdropViewSettingsAdaptiveLight", 2060, false},
                          {"_UIBackdropViewSettingsPasscodePaddle", 3900, true}};
    for (const auto &style : cases) {
        SCOPED_TRACE(style.className);
        _UIBackdropViewSettings *settings = [objc_getClass(style.className) settingsForStyle:style.style];
        EXPECT_EQ([settings style], style.style);
        EXPECT_TRUE([settings isKindOfClass:objc_getClass(style.className)]);
        EXPECT_STREQ(object_getClassName([_UIBackdropViewSettings settingsForStyle:style.style]),
                     style.className);
        auto look = drawn([[[_UIBackdropView alloc] initWithSettings:settings] autorelease]);
        EXPECT_GT(look.blurRadius, 0);
        ASSERT_TRUE(look.tint);
        EXPECT_EQ(look.tint->red < 0.5, style.dark);
    }
}

TEST(Backdrop, FollowsChangedSettings) {
    _UIBackdropViewSettings *settings = [_UIBackdropViewSettings settingsForStyle:_UIBackdropViewStyleDark];
    UIView *view = [[[_UIBackdropView alloc] initWithSettings:settings] autorelease];
    [settings setBlurRadius:7];
    [settings setColorTint:[UIColor colorWithRed:1 green:0 blue:0 alpha:0.5]];
    [settings setColorTintAlpha:0.5];
    EXPECT_EQ(drawn(view).blurRadius, 7);
    EXPECT_EQ(drawn(view).tint, (render::Rgba{1, 0, 0, 0.25}));
}

TEST(Backdrop, WithoutSettingsShowsNothingOfItsOwn) {
    EXPECT_EQ(drawn([[[_UIBackdropView alloc] initWithSettings:nil] autorelease]), render::Backdrop{});
}

TEST(Backdrop, FillsItsSuperviewWhenToldTo) {
    UIView *superview = [[[UIView alloc] initWithFrame:CGRectMake(5, 5, 100, 200)] autorelease];
    CGRect own = CGRectMake(1, 2, 30, 40);
    for (BOOL fills : {YES, NO}) {
        UIView *view = [[[_UIBackdropView alloc] initWithFrame:own autosizesToFitSuperview:fills
                                                      settings:nil] autorelease];
        [superview setFrame:CGRectMake(5, 5, 100, 200)];
        [superview addSubview:view];
        EXPECT_TRUE(CGRectEqualToRect([view frame], fills ? [superview bounds] : own));
        [superview setFrame:CGRectMake(0, 0, 300, 50)];
        EXPECT_TRUE(CGRectEqualToRect([view frame], fills ? [superview bounds] : own));
    }
}

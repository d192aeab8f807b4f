// Bubble, panel, logo, content view and strip.
#include "Tweak/Panel/PanelBuild.h"

#include "Tweak/Core/Accessibility/Aids.h"
#include "Tweak/Core/PanelAnchor.h"
#include "Tweak/Core/State.h"
#include "Tweak/Core/Tags.h"

namespace pendix {

namespace {

constexpr CGFloat kLightBubbleAlpha = 0.7;
constexpr CGFloat kSolidDark = 0.1;    // white; what stands for the dark material
constexpr CGFloat kDarkerGround = 0.6; // black under white ink, for stronger colours

_UIBackdropViewSettings *material(const Scheme &scheme) {
    return scheme.light
               ? [objc_getClass("_UIBackdropViewSettingsAdaptiveLight")
                     settingsForStyle:_UIBackdropViewStyleAdaptiveLight]
               : [objc_getClass("_UIBackdropViewSettingsDark") settingsForStyle:_UIBackdropViewStyleDark];
}

// What lies on the panel's material.
UIColor *panelColor(const Scheme &scheme) {
    if (scheme.light) return [UIColor whiteColor];
    return darkensColors() ? [UIColor colorWithWhite:0 alpha:kDarkerGround] : [UIColor clearColor];
}

UIColor *solid(const Scheme &scheme) {
    return [UIColor colorWithWhite:scheme.light ? 1 : kSolidDark alpha:1];
}

// A plain view where the system has no such material, and a solid one for who wants nothing to shine through.
UIView *backdrop(CGRect frame, const Scheme &scheme, UIColor *color, NSInteger tag) {
    Class backdropClass = objc_getClass("_UIBackdropView");
    if (reducesTransparency()) {
        backdropClass = Nil;
        color = solid(scheme);
    }
    UIView *view = backdropClass ? [[backdropClass alloc] initWithFrame:frame
                                                autosizesToFitSuperview:NO
                                                               settings:material(scheme)]
                                 : [[UIView alloc] initWithFrame:frame];
    view.tag = tag;
    view.backgroundColor = color;
    view.layer.masksToBounds = YES;
    view.userInteractionEnabled = YES;
    return [view autorelease];
}

} // namespace

void addBubbleAndPanel(PanelBuild &build) {
    const Scheme &scheme = build.scheme;
    CGRect bubbleFrame = toCGRect(build.placement.bubble);
    UIColor *clear = [UIColor clearColor];
    UIColor *bubbleColor = scheme.light ? [UIColor colorWithWhite:1 alpha:kLightBubbleAlpha] : clear;
    build.bubble = backdrop(bubbleFrame, scheme, bubbleColor, tags::bubble);
    // Far more than half its width, so that it is round whatever size it has on the way.
    build.bubble.layer.cornerRadius = 2 * bubbleFrame.size.width;
    build.bubble.alpha = build.placement.bubbleAlpha;

    build.panel = backdrop(toCGRect(build.placement.panel), scheme, panelColor(scheme), tags::panel);
    build.panel.layer.cornerRadius = 0;

    CGRect seed = toCGRect(growthPoint(build.itemPlace.frame));
    build.bubble.frame = seed;
    build.panel.frame = seed;
}

void addLogo(PanelBuild &build) {
    UIImageView *logo = [[[UIImageView alloc] initWithFrame:toCGRect(build.itemPlace.frame)] autorelease];
    logo.image =
        [[[build.item contentsImage] image] imageWithRenderingMode:UIImageRenderingModeAlwaysTemplate];
    logo.tintColor = build.scheme.paper;
    logo.contentMode = UIViewContentModeCenter;
    logo.tag = tags::logo;
    build.logo = logo;
}

void addContentAndStrip(PanelBuild &build) {
    CGRect frame = CGRectMake(0, 0, build.placement.panel.width, gheight);
    build.content = [[[UIView alloc] initWithFrame:frame] autorelease];
    build.content.tag = tags::content;
    build.content.backgroundColor = [UIColor clearColor];
    build.content.userInteractionEnabled = YES;

    NewUIScrollView *strip = [[[NewUIScrollView alloc] initWithFrame:frame] autorelease];
    strip.pagingEnabled = build.paging;
    strip.backgroundColor = [UIColor clearColor];
    strip.showsHorizontalScrollIndicator = NO;
    strip.showsVerticalScrollIndicator = NO;
    strip.userInteractionEnabled = YES;
    build.strip = strip;
}

void fillStrip(PanelBuild &build, const std::vector<PanelApplication> &applications) {
    const StripInput &layout = build.layout;
    build.count = static_cast<int>(applications.size());
    pages = build.paging ? pageCount(build.count, layout.rows) : 0;
    for (int i = 0; i < build.count; ++i) addItem(build, applications[static_cast<std::size_t>(i)], i);
    Real content = static_cast<Real>(pages) * layout.strip.width;
    if (!build.paging && build.count > 0)
        content = unpagedContentWidth({cellFrame(layout, 0), cellFrame(layout, build.count - 1)});
    build.strip.contentSize = CGSizeMake(scrollableWidth(content, layout.strip.width), layout.strip.height);
}

} // namespace pendix

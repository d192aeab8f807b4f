#include "Tweak/Core/PanelAnchor.h"

#include "Tweak/Core/PanelViews.h"
#include "Tweak/Core/Screen.h"
#include "Tweak/Core/SettingKeys.h"
#include "Tweak/Core/Settings.h"
#include "Tweak/Core/State.h"
#include "Tweak/Core/Tags.h"

namespace pendix {

namespace {

// From a window's own coordinates to those of the screen held in portrait.
CGAffineTransform toScreen(UIWindow *of) {
    CGRect bounds = of.bounds;
    CGPoint centre = of.center;
    CGAffineTransform result =
        CGAffineTransformMakeTranslation(-CGRectGetMidX(bounds), -CGRectGetMidY(bounds));
    result = CGAffineTransformConcat(result, of.transform);
    return CGAffineTransformConcat(result, CGAffineTransformMakeTranslation(centre.x, centre.y));
}

Size portraitScreen() {
    CGSize size = portraitScreenBounds().size;
    return {size.width, size.height};
}

} // namespace

BOOL reachabilityIsActive() {
    return [(SBReachabilityManager *)[objc_getClass("SBReachabilityManager") sharedInstance]
        reachabilityModeActive];
}

Anchor currentAnchor(BOOL reachability) {
    BOOL rech = isOn(keys::followsPosition);
    NSString *name = rech ? textSetting(keys::position) : nil;
    Position position = Position::top;
    if ([name isEqualToString:@"middle"]) position = Position::middle;
    if ([name isEqualToString:@"bottom"]) position = Position::bottom;
    return anchorFor(rech, position, reachability);
}

ItemPlace placeInOverlay(UIView *item) {
    constexpr CGFloat kUpright = 0.9; // the cosine of an angle that is no quarter turn
    UIWindow *bar = item.window;
    if (!bar) return {toRect(item.frame)};
    CGRect inBar = [item convertRect:item.bounds toView:bar];
    CGAffineTransform toOverlay =
        CGAffineTransformConcat(toScreen(bar), CGAffineTransformInvert(toScreen(window)));
    return {toRect(CGRectApplyAffineTransform(inBar, toOverlay)), toOverlay.a < kUpright};
}

Placement placementFor(const ItemPlace &item, Anchor anchor, CGFloat height) {
    return placePanel({.item = item.frame,
                       .screen = portraitScreen(),
                       .landscape = static_cast<bool>(isLandscape()),
                       .anchor = anchor,
                       .height = height,
                       .aside = item.aside});
}

CGRect frameWithHeight(UIView *panel, CGFloat height) {
    CGRect frame = panel.frame;
    const Size screen = portraitScreen();
    const bool landscape = isLandscape();
    const Anchor anchor = currentAnchor(reachabilityIsActive());
    UIView *logo = overlayView(tags::logo);
    frame.origin.y = anchor == Anchor::item && logo
                         ? hangingY(toRect(logo.frame), height, screen, landscape)
                         : anchoredY(anchor, frame.origin.y, frame.size.height, height,
                                     landscape ? screen.width : screen.height);
    frame.size.height = height;
    return frame;
}

BOOL isLandscape() {
    return last == UIInterfaceOrientationLandscapeRight || last == UIInterfaceOrientationLandscapeLeft;
}

} // namespace pendix

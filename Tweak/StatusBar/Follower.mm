#include "Tweak/Core/AnimationDuration.h"
#include "Tweak/Core/PanelAnchor.h"
#include "Tweak/Core/State.h"
#include "Tweak/Core/Support/UIView+Touchable.h"
#include "Tweak/Core/Tags.h"
#include "Tweak/StatusBar/Replacements.h"
#include "Tweak/StatusBar/StatusBar.h"

#include <cmath>

namespace pendix {

namespace {

constexpr CGFloat kDimmed = 0.3;
constexpr float kFollowDuration = 0.2f; // seconds

// Puts logo, bubble and panel where they would stand had the panel been opened from the item's present place.
void moveWith(const ItemPlace &item, BOOL reachability, float duration) {
    UIView *panel = [window viewWithTag:tags::panel], *bubble = [window viewWithTag:tags::bubble];
    Placement placement = placementFor(item, currentAnchor(reachability), panel.frame.size.height);
    [window viewWithTag:tags::logo].frame = toCGRect(item.frame);
    [UIView animateTouchablyFor:duration
                     animations:^{
                         panel.frame = toCGRect(placement.panel);
                         bubble.frame = toCGRect(placement.bubble);
                         bubble.alpha = placement.bubbleAlpha;
                     }];
}

// A bar that turns after the overlay did, or comes down after Reachability told so, leaves the item's x as it
// was and takes the item away from its logo.
BOOL liesOn(const ItemPlace &item) {
    constexpr Real kTolerance = 0.5; // points
    Rect logo = toRect([window viewWithTag:tags::logo].frame);
    return std::abs(logo.x - item.frame.x) < kTolerance && std::abs(logo.y - item.frame.y) < kTolerance;
}

void follow(UIView *item, float duration) {
    BOOL reachability = reachabilityIsActive();
    float x = static_cast<float>(item.frame.origin.x);
    const ItemPlace place = placeInOverlay(item);
    if (x == lastx && reachability == lastReachability && liesOn(place)) return;
    lastReachability = reachability;
    lastx = x;
    moveWith(place, reachability, duration);
}

} // namespace

void added::alphaStatusBar(SpringBoard *self, SEL, NSTimer *timer) {
    if (!isShow) {
        [timer invalidate];
        return;
    }
    float duration = animationDuration(kFollowDuration);
    for (UIView *view in [self statusBarItemViews]) {
        if ([self isPendix:view]) {
            follow(view, duration);
        } else {
            [UIView animateWithDuration:duration animations:^{ view.alpha = kDimmed; }];
        }
    }
}

} // namespace pendix

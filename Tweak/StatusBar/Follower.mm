#include "Tweak/Core/AnimationDuration.h"
#include "Tweak/Core/PanelAnchor.h"
#include "Tweak/Core/Screen.h"
#include "Tweak/Core/State.h"
#include "Tweak/Core/Tags.h"
#include "Tweak/StatusBar/Replacements.h"
#include "Tweak/StatusBar/StatusBar.h"

namespace pendix {

namespace {

constexpr CGFloat kDimmed = 0.3;
constexpr float kFollowDuration = 0.2f; // seconds

// On a turned iPhone, and while the screen is let down, the status bar's window does not start where the
// overlay does.
CGRect frameInOverlay(UIView *item, BOOL letDown) {
    CGRect frame = item.frame;
    if (!letDown && (isPad() || !isLandscape())) return frame;
    CGPoint origin = window1.frame.origin;
    return CGRectMake(frame.origin.x + origin.x, frame.origin.y + origin.y, frame.size.width,
                      frame.size.height);
}

// Puts logo, bubble and panel where they would stand had the panel been opened from the item's present place.
void moveWith(UIView *item, BOOL reachability, float duration) {
    UIView *panel = [window viewWithTag:tags::panel], *bubble = [window viewWithTag:tags::bubble];
    CGSize screen = portraitScreenBounds().size;
    const Anchor anchor = currentAnchor(reachability);
    Placement placement = placePanel({.item = toRect(item.frame),
                                      .screen = {screen.width, screen.height},
                                      .landscape = static_cast<bool>(isLandscape()),
                                      .anchor = anchor,
                                      .height = panel.frame.size.height});
    // A panel that hangs on the item keeps the logo by its side; otherwise the logo lies on the item.
    [window viewWithTag:tags::logo].frame = frameInOverlay(item, reachability && anchor != Anchor::item);
    [UIView animateWithDuration:duration
                     animations:^{
                         panel.frame = toCGRect(placement.panel);
                         bubble.frame = toCGRect(placement.bubble);
                         bubble.alpha = placement.bubbleAlpha;
                     }];
}

void follow(UIView *item, float duration) {
    BOOL reachability = reachabilityIsActive();
    float x = static_cast<float>(item.frame.origin.x);
    if (x == lastx && reachability == lastReachability) return;
    lastReachability = reachability;
    lastx = x;
    moveWith(item, reachability, duration);
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

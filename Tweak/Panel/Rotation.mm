#include "Tweak/Core/AnimationDuration.h"
#include "Tweak/Core/PanelAnchor.h"
#include "Tweak/Core/PanelViews.h"
#include "Tweak/Core/Screen.h"
#include "Tweak/Core/State.h"
#include "Tweak/Core/Support/UIView+Touchable.h"
#include "Tweak/Core/Tags.h"
#include "Tweak/Lock/Lock.h"
#include "Tweak/Panel/Panel.h"
#include "Tweak/Panel/Replacements.h"

#include <math.h>

namespace pendix {

namespace {

constexpr NSTimeInterval kQuarterTurn = 0.3, kHalfTurn = 0.7; // seconds

CGFloat angleOf(NSInteger orientation) {
    switch (orientation) {
    case UIInterfaceOrientationPortraitUpsideDown:
        return -M_PI;
    case UIInterfaceOrientationLandscapeRight:
        return M_PI_2;
    case UIInterfaceOrientationLandscapeLeft:
        return -M_PI_2;
    default:
        return 0;
    }
}

BOOL landscape(NSInteger orientation) { return orientation >= UIInterfaceOrientationLandscapeRight; }

void turnOverlay(NSInteger orientation, NSTimeInterval duration) {
    CGRect screen = portraitScreenBounds();
    CGFloat side = screen.size.height;
    // The square covers the turned screen.
    CGRect covering = landscape(orientation) ? CGRectMake(0, 0, side, side) : screen;
    [UIView animateTouchablyFor:duration
        animations:^{
            window.transform = CGAffineTransformMakeRotation(angleOf(orientation));
            window.frame = screen;
        }
        completion:^(BOOL) { overlayView(tags::dismissView).frame = covering; }];
}

} // namespace

void added::pendixWillRotate(SpringBoard *, SEL, NSNotification *notification) {
    NSInteger orientation = [(UIDevice *)[notification object] orientation];
    if (orientation < UIInterfaceOrientationPortrait || orientation > UIInterfaceOrientationLandscapeLeft)
        return;
    if (orientation == last) return;
    NSLog(@"<Pendix> Orientation changed from %ld to %ld", static_cast<long>(last),
          static_cast<long>(orientation));
    if (!landscape(orientation)) {
        overlayView(tags::logo).alpha = 1;
    } else if ([UIApplication sharedApplication].statusBarHidden) {
        overlayView(tags::logo).alpha = 0;
    }
    turnOverlay(orientation, landscape(orientation) == landscape(last) ? kHalfTurn : kQuarterTurn);
    // No item stands there, so that the follower places the panel anew.
    constexpr float kNowhere = -10;
    lastx = kNowhere;
    last = orientation;
    fitLockFaces();
}

} // namespace pendix

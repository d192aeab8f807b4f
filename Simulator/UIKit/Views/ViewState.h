// The simulator's side of UIView.
#pragma once

#include "UIKit/QuartzCore/LayerState.h"

#include <UIKit/UIGestureRecognizer.h>
#include <UIKit/UIView.h>

#include <vector>

@class UIViewController;

namespace sim {

struct ViewState {
    CALayer *layer = nil;               // retained
    UIView *superview = nil;            // not retained; it retains this view
    UIViewController *controller = nil; // whose view this is; not retained
    NSInteger tag = 0;
    UIColor *tint = nil;                            // retained
    std::vector<UIGestureRecognizer *> recognizers; // retained
    UIViewAutoresizing autoresizing = UIViewAutoresizingNone;
    UIViewContentMode contentMode = UIViewContentModeScaleToFill;
    bool interactive = true;
    bool autoresizesSubviews = true;
    bool multipleTouch = false;
    bool exclusiveTouch = false;
    bool opaque = true;
    bool needsLayout = false;
};

ViewState &state(UIView *view);

// The view's direct subviews, back to front, as they stand now.
std::vector<UIView *> subviews(UIView *view);
// The same in the order in which they are drawn (by z position, then as they stand).
std::vector<UIView *> drawnSubviews(UIView *view);

// Lays out every view in a window that asked for it; at the end of each run-loop turn.
void layoutPendingViews();
// The view no longer waits for it; a view that goes calls this.
void forgetPendingLayout(UIView *view);

} // namespace sim

@interface UIView (Drawing)
// Adds what the view itself shows, between its background and its subviews. `node` has the presented bounds.
// Views that draw override this.
- (void)appendDrawingsTo:(render::Node &)node;
@end

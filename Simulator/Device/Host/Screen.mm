#include "Screen.h"

#include "Runtime/Process/Device.hpp"
#include "UIKit/Views/ViewState.h"

namespace sim {

namespace {

// From portrait to upright.
CGAffineTransform turn() {
    CGFloat width = device().width, height = device().height;
    switch ([[UIApplication sharedApplication] statusBarOrientation]) {
    case UIInterfaceOrientationPortraitUpsideDown:
        return {-1, 0, 0, -1, width, height};
    case UIInterfaceOrientationLandscapeRight:
        return {0, -1, 1, 0, 0, width};
    case UIInterfaceOrientationLandscapeLeft:
        return {0, 1, -1, 0, height, 0};
    default:
        return CGAffineTransformIdentity;
    }
}

} // namespace

CGPoint fromUpright(CGPoint point) {
    return CGPointApplyAffineTransform(point, CGAffineTransformInvert(turn()));
}
CGRect toUpright(CGRect rect) { return CGRectApplyAffineTransform(rect, turn()); }

CGRect presentedOnScreen(UIView *view) {
    CGRect bounds = presented([view layer]).bounds;
    CGAffineTransform toScreen = CGAffineTransformIdentity;
    for (; view; view = [view superview])
        toScreen = CGAffineTransformConcat(toScreen, presented([view layer]).toSuperlayer());
    return toUpright(CGRectApplyAffineTransform(bounds, toScreen));
}

} // namespace sim

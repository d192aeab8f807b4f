#include "Screen.h"

#include "UIKit/Application/ApplicationState.h"
#include "UIKit/CoreGraphics/CGGeometry+Further.h"
#include "UIKit/Views/ViewState.h"

namespace sim {

CGPoint fromUpright(CGPoint point) {
    return CGPointApplyAffineTransform(point, CGAffineTransformInvert(uprightTransform()));
}
CGRect toUpright(CGRect rect) { return CGRectApplyAffineTransform(rect, uprightTransform()); }

CGRect presentedOnScreen(UIView *view) {
    CGRect bounds = presented([view layer]).bounds;
    CGAffineTransform toScreen = CGAffineTransformIdentity;
    for (; view; view = [view superview])
        toScreen = CGAffineTransformConcat(toScreen, presented([view layer]).toSuperlayer());
    return toUpright(CGRectApplyAffineTransform(bounds, toScreen));
}

} // namespace sim

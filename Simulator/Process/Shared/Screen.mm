#include "Screen.h"

#include "UIKit/Application/ApplicationState.h"
#include "UIKit/CoreGraphics/CGGeometry+Further.h"
#include "UIKit/Views/ViewState.h"

namespace sim {

CGPoint fromUpright(CGPoint point) {
    return CGPointApplyAffineTransform(point, CGAffineTransformInvert(uprightTransform()));
}
CGRect toUpright(CGRect rect) { return CGRectApplyAffineTransform(rect, uprightTransform()); }

const LayerProperties &presented(CALayer *layer, LayerProperties &room) {
    const LayerState &own = state(layer);
    return own.animations.empty() ? own.model : room = presented(layer);
}

CGRect presentedOnScreen(UIView *view) {
    LayerProperties room;
    CGRect bounds = presented([view layer], room).bounds;
    CGAffineTransform toScreen = CGAffineTransformIdentity;
    for (; view; view = [view superview])
        toScreen = CGAffineTransformConcat(toScreen, presented([view layer], room).toSuperlayer());
    return toUpright(CGRectApplyAffineTransform(bounds, toScreen));
}

} // namespace sim

#include "AccessibilityFrames.h"

#include "Runtime/Process/Device.hpp"
#include "UIKit/Application/ApplicationState.h"
#include "UIKit/CoreGraphics/CGGeometry+Further.h"
#include "UIKit/Views/ViewState.h"

#include <UIKit/UIAccessibility.h>

namespace sim {

namespace {

CGAffineTransform fromPortrait() {
    return device().version >= Version{8, 0} ? uprightTransform() : CGAffineTransformIdentity;
}

} // namespace

CGRect accessibilityRect(CGRect rect, UIView *view) {
    CGAffineTransform toScreen = CGAffineTransformIdentity;
    for (; view; view = [view superview])
        toScreen = CGAffineTransformConcat(toScreen, presented([view layer]).toSuperlayer());
    return CGRectApplyAffineTransform(rect, CGAffineTransformConcat(toScreen, fromPortrait()));
}

CGRect portraitRect(CGRect accessibilityRect) {
    return CGRectApplyAffineTransform(accessibilityRect, CGAffineTransformInvert(fromPortrait()));
}

CGPoint touchPoint(CGPoint accessibilityPoint) {
    return CGPointApplyAffineTransform(accessibilityPoint, CGAffineTransformInvert(fromPortrait()));
}

CGRect accessibilityScreen() {
    return CGRectApplyAffineTransform(CGRectMake(0, 0, device().width, device().height), fromPortrait());
}

} // namespace sim

CGRect UIAccessibilityConvertFrameToScreenCoordinates(CGRect rect, UIView *view) {
    return sim::accessibilityRect(rect, view);
}

// How the interface lies on the screen, whose own coordinates stay those of portrait.
#include "ApplicationState.h"

#include "Runtime/Process/Device.hpp"
#include "UIKit/CoreGraphics/CGGeometry+Further.h"

#include <cmath>

namespace sim {

namespace {

CGFloat drop = 0;

UIInterfaceOrientation orientation() { return [[UIApplication sharedApplication] statusBarOrientation]; }

CGFloat angle() {
    switch (orientation()) {
    case UIInterfaceOrientationPortraitUpsideDown:
        return M_PI;
    case UIInterfaceOrientationLandscapeRight:
        return M_PI_2;
    case UIInterfaceOrientationLandscapeLeft:
        return -M_PI_2;
    default:
        return 0;
    }
}

} // namespace

CGSize interfaceSize() {
    const auto &device = sim::device();
    bool turned = orientation() == UIInterfaceOrientationLandscapeRight ||
                  orientation() == UIInterfaceOrientationLandscapeLeft;
    return turned ? CGSizeMake(device.height, device.width) : CGSizeMake(device.width, device.height);
}

void setInterfaceDrop(CGFloat points) { drop = points; }

CGAffineTransform uprightTransform() {
    CGFloat width = device().width, height = device().height;
    switch (orientation()) {
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

CGAffineTransform interfaceTransform() {
    return CGAffineTransformConcat(CGAffineTransformMakeTranslation(0, drop),
                                   CGAffineTransformMakeRotation(angle()));
}

void fillInterface(UIWindow *window) {
    CGSize size = interfaceSize();
    [window setTransform:interfaceTransform()];
    [window setBounds:CGRectMake(0, 0, size.width, size.height)];
    [window setCenter:CGPointMake(device().width / 2, device().height / 2)];
}

} // namespace sim

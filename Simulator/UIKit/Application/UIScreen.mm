#include "ApplicationState.h"

#include "Runtime/Process/Device.hpp"

#include <UIKit/UIScreen.h>

@implementation UIScreen

+ (UIScreen *)mainScreen {
    static UIScreen *screen = [UIScreen new];
    return screen;
}

- (CGRect)bounds {
    const auto &device = sim::device();
    UIInterfaceOrientation orientation = [[UIApplication sharedApplication] statusBarOrientation];
    bool turned =
        device.version >= sim::Version{8, 0} && (orientation == UIInterfaceOrientationLandscapeLeft ||
                                                 orientation == UIInterfaceOrientationLandscapeRight);
    return turned ? CGRectMake(0, 0, device.height, device.width)
                  : CGRectMake(0, 0, device.width, device.height);
}

- (CGFloat)scale {
    return sim::device().scale;
}

@end

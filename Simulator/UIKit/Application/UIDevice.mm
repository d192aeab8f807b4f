#include "ApplicationState.h"

#include "Runtime/Process/Device.hpp"
#include "UIDevice+Further.h"

#include <UIKit/UIDevice.h>

NSString *const UIDeviceOrientationDidChangeNotification = @"UIDeviceOrientationDidChangeNotification";

namespace {
UIDeviceOrientation orientation = UIDeviceOrientationPortrait;
int listeners = 0;
} // namespace

namespace sim {

void setDeviceOrientation(UIDeviceOrientation next) {
    if (orientation == next) return;
    orientation = next;
    if (!listeners) return;
    [[NSNotificationCenter defaultCenter] postNotificationName:UIDeviceOrientationDidChangeNotification
                                                        object:[UIDevice currentDevice]];
}

} // namespace sim

@implementation UIDevice

+ (UIDevice *)currentDevice {
    static UIDevice *device = [UIDevice new];
    return device;
}

- (NSString *)model {
    return sim::device().pad ? @"iPad" : @"iPhone";
}

- (NSString *)systemVersion {
    return [NSString stringWithUTF8String:sim::toString(sim::device().version).c_str()];
}

- (UIDeviceOrientation)orientation {
    return orientation;
}

- (UIUserInterfaceIdiom)userInterfaceIdiom {
    return sim::device().pad ? UIUserInterfaceIdiomPad : UIUserInterfaceIdiomPhone;
}

- (void)beginGeneratingDeviceOrientationNotifications {
    ++listeners;
}

- (void)endGeneratingDeviceOrientationNotifications {
    if (listeners) --listeners;
}

@end

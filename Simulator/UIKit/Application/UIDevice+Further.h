// What the platform has beyond <UIKit/UIDevice.h>: used by the simulator and its tests only.
#pragma once

#include <UIKit/UIDevice.h>

@interface UIDevice (Further)
- (void)endGeneratingDeviceOrientationNotifications;
@end

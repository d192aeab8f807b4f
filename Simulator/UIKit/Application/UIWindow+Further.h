// What the platform has beyond <UIKit/UIWindow.h>: used by the simulator and its tests only.
#pragma once

#include <UIKit/UIWindow.h>

@interface UIWindow (Further)
- (void)makeKeyAndVisible;
- (void)makeKeyWindow;
@end

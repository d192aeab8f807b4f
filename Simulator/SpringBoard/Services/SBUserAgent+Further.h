// What the platform has beyond <SpringBoard/SpringBoard.h>: used by the simulator and its tests only.
#pragma once

#include <SpringBoard/SpringBoard.h>

@interface SBUserAgent (Further)
- (BOOL)deviceIsLocked;
@end

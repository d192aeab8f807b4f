// What the platform has beyond <SpringBoard/SBApplication.h>: used by the simulator and its tests only.
#pragma once

#include <SpringBoard/SBApplication.h>

@interface SBAppSwitcherModel (Further)
- (void)addToFront:(id)entry;
@end

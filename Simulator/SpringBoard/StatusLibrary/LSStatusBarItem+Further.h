// What the platform has beyond <StatusBar/LSStatusBarItem.h>: used by the simulator and its tests only.
#pragma once

#include <StatusBar/LSStatusBarItem.h>

@interface LSStatusBarItem (Further)
// With it, what is set shows when `update` is sent; NO.
@property (nonatomic, getter=isManualUpdate) BOOL manualUpdate;
- (void)update;
@end

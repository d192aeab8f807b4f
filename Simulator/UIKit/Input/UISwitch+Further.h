// What the platform has beyond <UIKit/UISwitch.h>: used by the simulator and its tests only.
#pragma once

#include <UIKit/UISwitch.h>

@interface UISwitch (Further)
@property (nonatomic, retain) UIColor *thumbTintColor;
- (void)setOn:(BOOL)on animated:(BOOL)animated;
@end

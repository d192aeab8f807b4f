// What the platform has beyond <UIKit/UIAlertView.h>: used by the simulator and its tests only.
#pragma once

#include <UIKit/UIAlertView.h>

@interface UIAlertView (Further)
@property (nonatomic, readonly) NSInteger numberOfButtons;
@property (nonatomic) NSInteger cancelButtonIndex; // -1 without one
- (NSInteger)addButtonWithTitle:(NSString *)title;
- (NSString *)buttonTitleAtIndex:(NSInteger)index;
- (void)dismissWithClickedButtonIndex:(NSInteger)index animated:(BOOL)animated;
@end

// What the platform has beyond <UIKit/UISegmentedControl.h>: used by the simulator and its tests only.
#pragma once

#include <UIKit/UISegmentedControl.h>

@interface UISegmentedControl (Further)
// Strings (images are not offered).
- (instancetype)initWithItems:(NSArray *)items;
@property (nonatomic, readonly) NSUInteger numberOfSegments;
@property (nonatomic) NSInteger selectedSegmentIndex;
- (NSString *)titleForSegmentAtIndex:(NSUInteger)index;
@end

// What the platform has beyond <UIKit/UIPageControl.h>: used by the simulator and its tests only.
#pragma once

#include <UIKit/UIPageControl.h>

@interface UIPageControl (Further)
@property (nonatomic) NSInteger currentPage;
@property (nonatomic) BOOL hidesForSinglePage;
@property (nonatomic, retain) UIColor *pageIndicatorTintColor;
@property (nonatomic, retain) UIColor *currentPageIndicatorTintColor;
@end

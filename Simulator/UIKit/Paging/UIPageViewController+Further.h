// What the platform has beyond <UIKit/UIPageViewController.h>: used by the simulator and its tests only.
#pragma once

#include <UIKit/UIPageViewController.h>

@interface UIPageViewController (Further)
@property (nonatomic, readonly) UIPageViewControllerTransitionStyle transitionStyle;
@end

// What the platform has beyond <UIKit/UIScrollView.h>: used by the simulator and its tests only.
#pragma once

#include <UIKit/UIScrollView.h>

@interface UIScrollView (Further)
@property (nonatomic) UIEdgeInsets contentInset;
@property (nonatomic) BOOL alwaysBounceHorizontal;
@property (nonatomic, readonly) UIPanGestureRecognizer *panGestureRecognizer;
@end

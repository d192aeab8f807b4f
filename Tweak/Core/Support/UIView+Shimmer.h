#pragma once

#include <UIKit/UIView.h>

@interface UIView (Shimmer)
// A dim band sweeps across the view, again and again, until stopShimmering. Uses the layer's mask.
- (void)startShimmering;
- (void)stopShimmering;
@end

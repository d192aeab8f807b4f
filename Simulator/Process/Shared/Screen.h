// The screen as the person who holds it sees it: upright, however the device is turned.
#pragma once

#include "UIKit/QuartzCore/LayerState.h"

#include <UIKit/UIKit.h>

namespace sim {

// Between points seen upright and points of the screen held in portrait, in which windows lie.
CGPoint fromUpright(CGPoint point);
CGRect toUpright(CGRect rect);

// What presented() gives, copied to `room` only where it is not the model itself.
const LayerProperties &presented(CALayer *layer, LayerProperties &room);

// The smallest upright rectangle around what the view shows at this moment.
CGRect presentedOnScreen(UIView *view);

} // namespace sim

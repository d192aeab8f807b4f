// What views hear of touches, after the gesture recognisers: a touch may be held back from its view while a
// recogniser delays it, and is taken from it when a recogniser claims it.
#pragma once

#include "TouchState.h"

namespace sim {

// Whether the view is to hear of a touch that comes down on it: views without multiple touch take one at a
// time, and an exclusive view shares its window with no other.
bool mayReach(UITouch *touch, UIView *view);

// Tells the views what they have not heard yet and may hear now.
void deliverToViews();

// The view gets no more of the touch; one that knows of it hears that it was cancelled.
void takeFromView(UITouch *touch);

} // namespace sim

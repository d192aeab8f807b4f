// Windows and what they show, in few words: for who looks after every event.
#pragma once

#include "Supervisor/Protocol/Changes.hpp"

#include <UIKit/UIKit.h>

namespace sim {

// How many windows there are of each role, by name.
Value windowCounts();

// {"interactive", "hidden", "touchable": of nine points spread over the screen, those at which a touch would
// land in the window, "views": how many rows were put}. A row is the window or a view in it, depth first in
// drawing order:
//   depth (0: the window itself), class, tag, seen, finite, interactive
//   x, y, width, height of what it shows at this moment, in points of the upright screen
//   x, y, width, height of its frame (model); name of its layer, text, image, each empty for none
//   number of gesture recognisers, whether an animation of its own is under way that will end
//   what lookOf() gives
// "seen" is a part of it on the screen, inside every view that clips, through alphas above 0.01 all the way
// up. "finite" is false when a number of its geometry or its alpha, model or presented, is none or infinite;
// places are then given as 0.
Value windowReport(UIWindow *window, RowWriter &rows);

} // namespace sim

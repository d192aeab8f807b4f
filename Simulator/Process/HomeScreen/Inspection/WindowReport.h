// Windows and what they show, in few words: for who looks after every event.
#pragma once

#include "Runtime/Values/Value.hpp"

#include <UIKit/UIKit.h>

namespace sim {

// How many windows there are of each role, by name.
Value windowCounts();

// {"interactive", "hidden", "touchable": of nine points spread over the screen, those at which a touch would
// land in the window, "views": the window and all that it holds, depth first in drawing order}. A view is an
// array:
//   0 depth (0: the window itself)   1 class   2 tag   3 seen   4 finite   5 interactive
//   6 x, 7 y, 8 width, 9 height of what it shows at this moment, in points of the upright screen
//   10 x, 11 y, 12 width, 13 height of its frame (model)   14 name of its layer   15 text   16 image
//   17 number of gesture recognisers   18 whether an animation of its own is under way that will end
//   19 to 27 what lookOf() gives
// "seen" is a part of it on the screen, inside every view that clips, through alphas above 0.01 all the way
// up. "finite" is false when a number of its geometry or its alpha, model or presented, is none or infinite;
// places are then given as 0.
Value windowReport(UIWindow *window);

} // namespace sim

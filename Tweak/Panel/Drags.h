// Drags of items off the strip. Several fingers may drag several items.
#pragma once

#include <UIKit/UIView.h>

namespace pendix {

// Ends the item's drag: it is at rest again, or goes.
void endDrag(UIView *item);

// Takes every finger from the items: what is being dragged returns to its place, nothing else comes of them.
void takeBackDrags();

} // namespace pendix

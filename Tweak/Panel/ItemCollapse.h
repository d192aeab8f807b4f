// An item view that is closed shrinks into its middle, with all that it shows.
#pragma once

#include <UIKit/UIView.h>

namespace pendix {

// Before: the item's layer keeps its size; a view that takes over the shadow of a card's icon can shrink.
void separateShadow(UIView *item);

// In an animation block.
void shrinkToCentre(UIView *item);

} // namespace pendix

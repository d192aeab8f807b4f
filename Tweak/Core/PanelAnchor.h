// The indicator, the settings and the system's state that decide where the panel stands, read afresh.
#pragma once

#include "Tweak/Core/Geometry/PanelPlacement.hpp"

#include <UIKit/UIView.h>

namespace pendix {

// Whether the system has pulled the screen down; NO where it cannot.
BOOL reachabilityIsActive();

// From the settings `rech` and `position` (read only while `rech` is on) and the Reachability state.
Anchor currentAnchor(BOOL reachability);

inline Rect toRect(CGRect rect) { return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height}; }
inline CGRect toCGRect(const Rect &rect) { return CGRectMake(rect.x, rect.y, rect.width, rect.height); }

// Where the indicator is in the overlay's coordinates.
struct ItemPlace {
    Rect frame;
    bool aside = false; // it lies turned there
};
// The item's view wherever its window has come: the screen is let down, turned with the overlay, or kept
// upright while the overlay turns. Nowhere, without a size, for nil. Everything that the panel does by the
// indicator goes by this: opening, logo, following, closing.
ItemPlace placeInOverlay(UIView *item);

// Bubble and panel, of that height, for an indicator there.
Placement placementFor(const ItemPlace &item, Anchor anchor, CGFloat height);

// The panel's frame with another height, where its anchor leaves it. The logo tells where the indicator is.
CGRect frameWithHeight(UIView *panel, CGFloat height);

// Whether the panel follows a landscape orientation.
BOOL isLandscape();

} // namespace pendix

// Where the panel and its bubble stand: one rule for opening, growing, shrinking, moving and turning. Plain
// numbers in points, in the overlay window's coordinates.
#pragma once

#include "Tweak/Core/Geometry/Rect.hpp"

namespace pendix {

enum class Anchor {
    item,   // under the indicator
    middle, // in the middle of the screen
    bottom  // at the lower edge, within reach of a thumb
};

// `rech` and `position` are the settings ("middle", "bottom", anything else is the top); `reachability` tells
// whether the system has pulled the screen down. Without the setting, Reachability alone brings the panel
// down.
enum class Position { top, middle, bottom };
Anchor anchorFor(bool rech, Position position, bool reachability);

struct Placement {
    Rect panel;
    Rect bubble;
    Real bubbleAlpha = 1;
};

struct PlacementInput {
    Rect item;   // the indicator's frame, also where the screen is let down or turned otherwise
    Size screen; // portrait, whichever way it is held
    bool landscape = false;
    Anchor anchor = Anchor::item;
    Real height = 0;    // of the panel
    bool aside = false; // the indicator lies turned: the interface is held another way than the overlay
};

// The panel is eight tenths of the screen's shorter side wide. Upright it stands centred under the
// indicator's line; turned, its right end lies under the indicator, or all of it beside one that lies aside.
// The bubble shows only where the panel hangs on the indicator, and not where it would stick out beyond the
// upright panel's right end.
Placement placePanel(const PlacementInput &input);

// The y of a panel of that height that hangs on the indicator: under it, or, where the screen ends there, as
// low as the bottom anchor allows, but no higher than under an indicator at the screen's top.
Real hangingY(const Rect &item, Real height, Size screen, bool landscape);

// The y of a panel that grows or shrinks while it is shown: in the middle it stays centred on `screenExtent`
// (the screen's height as it is held), at the bottom its lower edge stays, elsewhere its upper one.
Real anchoredY(Anchor anchor, Real y, Real height, Real newHeight, Real screenExtent);

// The point into which the panel collapses and out of which it grows: above the item's bottom centre, one
// point square.
Rect growthPoint(const Rect &item);

} // namespace pendix

// The settings and the system's state that decide where the panel stands, read afresh.
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

// The panel's frame with another height, where its anchor leaves it; by the status bar's orientation.
CGRect frameWithHeight(UIView *panel, CGFloat height);

// Whether the panel follows a landscape orientation.
BOOL isLandscape();

} // namespace pendix

// Views as plain values.
#pragma once

#include "Runtime/Values/Value.hpp"

#include <UIKit/UIKit.h>

#include <vector>

namespace sim {

// {"matches": [number], "views": [view]}: the views, and all that lie below them, once each. A view is an
// object with the fields that scripts know, its "number", and the numbers of its "children". Lengths are
// rounded to millionths.
Value snapshot(const std::vector<UIView *> &views);

// The view and all that hold it, from the inside out, each with its fields alone.
Array lineage(UIView *view);

// What the image that a view shows came from; null when it shows none. A status-bar item is known by its
// image's name.
Value imageOf(UIView *view);

// How the view is drawn at this moment: [alpha, background or null, corner radius, border's width, the colour
// of its text or its tint, the size of its font or 0, whether it has a picture, and how far it is scrolled
// and how wide its contents are, both 0 for what does not scroll]. A number that is none counts as 0.
Array lookOf(UIView *view);

} // namespace sim

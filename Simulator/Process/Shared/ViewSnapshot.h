// Views as plain values.
#pragma once

#include "Runtime/Values/Value.hpp"
#include "UIKit/QuartzCore/LayerProperties.hpp"

#include <UIKit/UIKit.h>

#include <string>
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

// How a view is drawn at this moment. Colours are "#rrggbbaa", empty for none; a number that is none counts
// as 0.
struct ViewLook {
    double alpha = 0;
    std::string background;
    double cornerRadius = 0, borderWidth = 0;
    std::string ink;     // the colour of its text, else its tint
    double fontSize = 0; // 0 for what shows no text
    bool picture = false;
    double scrolled = 0, contentWidth = 0; // both 0 for what does not scroll
};
// `shown` is what its layer presents.
ViewLook lookOf(UIView *view, const LayerProperties &shown);

} // namespace sim

// Pictures of applications: full squares from the platform's folder or drawn here, with their corners taken
// off.
#pragma once

#include <UIKit/UIImage.h>

#include <string>

namespace sim {

// The radius of an icon's corners, in units of its side.
constexpr double kIconCornerRatio = 13.5 / 60;

// The side of an icon image on this device, in points.
double iconSide();

struct IconSpec {
    std::string identifier, name;
    bool own = true; // false: it has no picture, and shows the placeholder
};

// With rounded corners, in the size of the home screen. All placeholders have the same pixels. Not cached.
UIImage *drawApplicationIcon(const IconSpec &application);

// The shape of an icon, opaque: what takes the corners off.
UIImage *iconShape();

} // namespace sim

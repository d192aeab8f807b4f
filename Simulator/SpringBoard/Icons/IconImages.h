// The pictures of icons: full squares from the platform's folder or drawn here, with their corners taken off.
#pragma once

#include "Render/Geometry.hpp"
#include "SpringBoard/Applications/Applications.h"

#include <UIKit/UIImage.h>

namespace sim {

// The side of an icon image on this device, in points.
double iconSide();

// An image with rounded corners, made once an application. Those without a drawing of their own share the
// placeholder's pixels.
UIImage *iconImage(SBApplication *application);

// The mean of an icon's pixels.
render::Rgba meanIconColor(SBApplication *application);

// The shape of an icon, opaque: what takes the corners off.
UIImage *iconShape();

} // namespace sim

// The pictures of icons, by application.
#pragma once

#include "Render/Geometry.hpp"
#include "SpringBoard/Applications/Applications.h"
#include "UIKit/Images/ApplicationIcons.h"

#include <UIKit/UIImage.h>

namespace sim {

// An image with rounded corners, made once an application. Those without a drawing of their own share the
// placeholder's pixels.
UIImage *iconImage(SBApplication *application);

// The mean of an icon's pixels.
render::Rgba meanIconColor(SBApplication *application);

} // namespace sim

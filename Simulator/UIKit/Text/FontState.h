#pragma once

#include "Render/Text.hpp"

#include <UIKit/UIFont.h>

namespace sim {

// The face and size to draw with; alignment and line breaks are left at their defaults.
render::TextStyle textStyle(UIFont *font);

} // namespace sim

// The simulator's side of the blurring material.
#pragma once

#include "Render/DisplayList.hpp"

#include <UIKit/UIBackdropView.h>

namespace sim {

// What the settings ask the renderer for; nil settings show what lies behind as it is.
render::Backdrop backdrop(_UIBackdropViewSettings *settings);

} // namespace sim

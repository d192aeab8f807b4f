// Turning the interface of an application with the device.
#pragma once

#include <UIKit/UIGeometry.h>

namespace sim {

// The device is turned: the application follows with an animation when the topmost controllers of its windows
// allow it. Windows of the status bar, keyboard and alerts follow too.
void turnInterface(UIInterfaceOrientation orientation);

} // namespace sim

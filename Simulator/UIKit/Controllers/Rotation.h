// Turning the interface of an application with the device.
#pragma once

#include <UIKit/UIWindow.h>

namespace sim {

// The angle by which an interface of that orientation is turned on a screen held upright.
CGFloat angleOf(UIInterfaceOrientation orientation);
// Lays the window over the whole screen, turned to the orientation.
void fitToScreen(UIWindow *window, UIInterfaceOrientation orientation);

// The device is turned: the application follows with an animation when the topmost controllers of its windows
// allow it. Windows of the status bar, keyboard and alerts follow too.
void turnInterface(UIInterfaceOrientation orientation);

} // namespace sim

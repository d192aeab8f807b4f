// The simulator's side of the application object, its windows and the screen.
#pragma once

#include "Render/DisplayList.hpp"

#include <UIKit/UIApplication.h>

#include <vector>

namespace sim {

// Installs the application object; the process has one. Called by the host before anything asks for it.
void setSharedApplication(UIApplication *application);

// Windows that are not hidden, back to front: by level, then in the order in which they were shown.
std::vector<UIWindow *> visibleWindows();
// The same with those that are hidden.
std::vector<UIWindow *> windowsBackToFront();
// Those of them that the screen shows and that touches reach: none while the display is off, and only secure
// ones while it shows nothing else.
std::vector<UIWindow *> displayedWindows();
// All windows in the order in which they were made.
std::vector<UIWindow *> allWindows();

// Puts layout and animations at the end of every run-loop turn. Once a process.
void installRunLoop();

// What is on the screen at this moment.
render::Scene currentScene();

// What a window is to the person looking at it; windows that the system did not make are overlays.
enum class WindowRole { overlay, statusBar, home, lock, alert, application };
void setRole(UIWindow *window, WindowRole role);
WindowRole role(UIWindow *window);

// What the display server is told. A window's context is made, secure or not, when the window is first shown.
struct Display {
    bool on = true;
    bool secureOnly = false;
};
Display &display();
void setContextSecure(UIWindow *window, bool secure);
bool isContextSecure(UIWindow *window);

void setInterfaceOrientation(UIInterfaceOrientation orientation);
// The screen as seen upright.
CGSize interfaceSize();
// From the screen's own coordinates to those of a person who looks at it upright.
CGAffineTransform uprightTransform();
// How far the interface is let down for the thumb, in points; 0 at first.
void setInterfaceDrop(CGFloat points);
// Of a window that follows the interface, around the screen's middle.
CGAffineTransform interfaceTransform();
// Lets the window fill the interface.
void fillInterface(UIWindow *window);
void setStatusBarHidden(bool hidden);
// How the device is held; upright at first. While somebody has asked for notifications each change is one.
// Who asks first is told at once, but after the call: until then the orientation is unknown.
void setDeviceOrientation(UIDeviceOrientation orientation);
UIDeviceOrientation deviceOrientation();

} // namespace sim

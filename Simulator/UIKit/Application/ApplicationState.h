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

void setInterfaceOrientation(UIInterfaceOrientation orientation);
void setStatusBarHidden(bool hidden);
void setDeviceOrientation(UIDeviceOrientation orientation); // posts the notification when somebody listens

} // namespace sim

// The window of the application in front.
#pragma once

#include <SpringBoard/SBApplication.h>
#include <UIKit/UIWindow.h>

namespace sim {

// Grows out of the application's icon, over the one that was in front.
void showApplicationWindow(SBApplication *application);
// nil on the home screen.
UIWindow *frontApplicationWindow();
// Shrinks back into the icon.
void hideApplicationWindow(SBApplication *application);
// The window of the application in front, or the home screen's, becomes the key window; nothing happens while
// the lock screen is up.
void focusFrontWindow();

} // namespace sim

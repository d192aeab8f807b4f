// Which application is in front, and how one comes and goes.
#pragma once

#include <SpringBoard/SBApplication.h>

namespace sim {

// nil while the home screen is in front.
SBApplication *frontApplication();

// Starts the application when it does not run, makes it the switcher's first, and brings it to the front
// unless it is to stay suspended. Nothing happens with the application that is in front already.
void launch(SBApplication *application, bool suspended);

// The application in front shrinks back into its icon. Nothing happens on the home screen.
void returnToHomeScreen();

} // namespace sim

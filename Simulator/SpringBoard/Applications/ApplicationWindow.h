// The window of the application in front.
#pragma once

#include <SpringBoard/SBApplication.h>

namespace sim {

// Grows out of the application's icon, over the one that was in front.
void showApplicationWindow(SBApplication *application);
// Shrinks back into the icon.
void hideApplicationWindow(SBApplication *application);

} // namespace sim

// An open folder, over the home screen.
#pragma once

#include <SpringBoard/SBIcon.h>

namespace sim {

// The icons inside come out onto a panel, and draw their badges there. Nothing happens while a folder is
// open.
void openFolder(SBIconView *folderView);
// false when no folder is open.
bool closeFolder(bool animated);

} // namespace sim

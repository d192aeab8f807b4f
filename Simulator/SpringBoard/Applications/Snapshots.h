// The pictures of applications that the system keeps for the switcher.
#pragma once

#include <SpringBoard/SBApplication.h>

namespace sim {

// The folder of an application's snapshots; they lie one folder deeper, under the identifier once more. The
// picture of an application that has been seen is drawn when the folder is first asked for; what lies there
// already stays.
NSString *snapshotFolder(SBApplication *application);

} // namespace sim

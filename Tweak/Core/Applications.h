// Applications and their icons on the home screen, found the way each system version wants.
#pragma once

#include <SpringBoard/SBApplication.h>
#include <SpringBoard/SBIcon.h>

namespace pendix {

// The identifier by which an application is known everywhere here; nil for nil.
NSString *identifierOf(SBApplication *application);

// nil for an identifier of no application.
SBApplication *applicationOf(NSString *identifier);

// The view of the application's icon in the home screen's map; nil when it has none.
SBIconView *iconViewOf(NSString *identifier);

} // namespace pendix

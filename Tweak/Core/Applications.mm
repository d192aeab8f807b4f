#include "Tweak/Core/Applications.h"

#include "Tweak/Core/Screen.h"

namespace pendix {

NSString *identifierOf(SBApplication *application) {
    return systemVersion() >= 8.0 ? [application bundleIdentifier] : [application displayIdentifier];
}

SBIconView *iconViewOf(NSString *identifier) {
    SBIconController *controller = [objc_getClass("SBIconController") sharedInstance];
    SBIcon *icon = [[controller model] expectedIconForDisplayIdentifier:identifier];
    return [(SBIconViewMap *)[objc_getClass("SBIconViewMap") homescreenMap] iconViewForIcon:icon];
}

} // namespace pendix

#include "Tweak/Core/Applications.h"

#include "Tweak/Core/Screen.h"

namespace pendix {

NSString *identifierOf(SBApplication *application) {
    return isEight() ? [application bundleIdentifier] : [application displayIdentifier];
}

SBApplication *applicationOf(NSString *identifier) {
    SBApplicationController *controller = [objc_getClass("SBApplicationController") sharedInstance];
    return isEight() ? [controller applicationWithBundleIdentifier:identifier]
                     : [controller applicationWithDisplayIdentifier:identifier];
}

SBIconView *iconViewOf(NSString *identifier) {
    SBIconController *controller = [objc_getClass("SBIconController") sharedInstance];
    SBIcon *icon = [[controller model] expectedIconForDisplayIdentifier:identifier];
    return [(SBIconViewMap *)[objc_getClass("SBIconViewMap") homescreenMap] iconViewForIcon:icon];
}

} // namespace pendix

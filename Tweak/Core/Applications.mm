#include "Tweak/Core/Applications.h"

#include "Tweak/Core/Screen.h"

namespace pendix {

NSString *identifierOf(SBApplication *application) {
    return systemVersion() >= 8.0 ? [application bundleIdentifier] : [application displayIdentifier];
}

SBApplication *applicationOf(NSString *identifier) {
    SBApplicationController *controller = [objc_getClass("SBApplicationController") sharedInstance];
    return systemVersion() >= 8.0 ? [controller applicationWithBundleIdentifier:identifier]
                                  : [controller applicationWithDisplayIdentifier:identifier];
}

SBIconView *iconViewOf(NSString *identifier) {
    SBIconController *controller = [objc_getClass("SBIconController") sharedInstance];
    SBIcon *icon = [[controller model] expectedIconForDisplayIdentifier:identifier];
    return [(SBIconViewMap *)[objc_getClass("SBIconViewMap") homescreenMap] iconViewForIcon:icon];
}

} // namespace pendix

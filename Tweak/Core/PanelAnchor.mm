#include "Tweak/Core/PanelAnchor.h"

#include "Tweak/Core/Settings.h"
#include "Tweak/Core/State.h"

namespace pendix {

BOOL reachabilityIsActive() {
    return [(SBReachabilityManager *)[objc_getClass("SBReachabilityManager") sharedInstance]
        reachabilityModeActive];
}

Anchor currentAnchor(BOOL reachability) {
    BOOL rech = isOn(@"rech");
    NSString *name = rech ? textSetting(@"position") : nil;
    Position position = Position::top;
    if ([name isEqualToString:@"middle"]) position = Position::middle;
    if ([name isEqualToString:@"bottom"]) position = Position::bottom;
    return anchorFor(rech, position, reachability);
}

BOOL isLandscape() {
    return last == UIInterfaceOrientationLandscapeRight || last == UIInterfaceOrientationLandscapeLeft;
}

} // namespace pendix

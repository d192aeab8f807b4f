#include "Tweak/Core/PanelAnchor.h"

#include "Tweak/Core/Screen.h"
#include "Tweak/Core/SettingKeys.h"
#include "Tweak/Core/Settings.h"
#include "Tweak/Core/State.h"

namespace pendix {

BOOL reachabilityIsActive() {
    return [(SBReachabilityManager *)[objc_getClass("SBReachabilityManager") sharedInstance]
        reachabilityModeActive];
}

Anchor currentAnchor(BOOL reachability) {
    BOOL rech = isOn(keys::followsPosition);
    NSString *name = rech ? textSetting(keys::position) : nil;
    Position position = Position::top;
    if ([name isEqualToString:@"middle"]) position = Position::middle;
    if ([name isEqualToString:@"bottom"]) position = Position::bottom;
    return anchorFor(rech, position, reachability);
}

CGRect frameWithHeight(UIView *panel, CGFloat height) {
    CGRect frame = panel.frame;
    CGSize screen = portraitScreenBounds().size;
    UIInterfaceOrientation orientation = [UIApplication sharedApplication].statusBarOrientation;
    BOOL turned = orientation == UIInterfaceOrientationLandscapeRight ||
                  orientation == UIInterfaceOrientationLandscapeLeft;
    frame.origin.y = anchoredY(currentAnchor(reachabilityIsActive()), frame.origin.y, frame.size.height,
                               height, turned ? screen.width : screen.height);
    frame.size.height = height;
    return frame;
}

BOOL isLandscape() {
    return last == UIInterfaceOrientationLandscapeRight || last == UIInterfaceOrientationLandscapeLeft;
}

} // namespace pendix

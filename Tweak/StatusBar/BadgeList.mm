#include "Tweak/Core/Applications.h"
#include "Tweak/Core/SettingKeys.h"
#include "Tweak/Core/Settings.h"
#include "Tweak/Core/State.h"
#include "Tweak/StatusBar/Replacements.h"
#include "Tweak/StatusBar/StatusBar.h"

namespace pendix {

namespace {

// Puts the application at the head of the list, or takes it off.
void list(NSString *identifier, BOOL hasBadge) {
    if (!identifier) return;
    [datas removeObject:identifier];
    if (hasBadge && !hide_per(identifier)) [datas insertObject:identifier atIndex:0];
}

// A folder draws one badge for all that it holds, so each application in it is looked at. One whose badge is
// gone stays listed: only a badge of its own on the home screen takes an application off.
void listFolder(SBFolderIcon *folderIcon) {
    if (![folderIcon respondsToSelector:@selector(folder)]) return;
    for (SBApplicationIcon *icon in [[folderIcon folder] allIcons]) {
        if (![icon respondsToSelector:@selector(application)]) continue;
        NSString *identifier = identifierOf([icon application]);
        SBIconView *view = iconViewOf(identifier);
        if ([view respondsToSelector:@selector(icon)] && [[view icon] badgeValue] != 0) list(identifier, YES);
    }
}

} // namespace

void hooked::resizeForTextImage(SBIconBadgeView *self, SEL _cmd, UIImage *image) {
    original::resizeForTextImage(self, _cmd, image);
    if (!self) return;
    if (badgeHeight == 0) badgeHeight = self.frame.size.height;
    SBIconView *iconView = (SBIconView *)self.superview;
    if (![iconView respondsToSelector:@selector(icon)]) return;
    SBIcon *icon = [iconView icon];
    if ([icon isFolderIcon]) {
        listFolder((SBFolderIcon *)icon);
    } else if (icon) {
        list([icon nodeIdentifier], [icon badgeValue] != 0);
    }
    indicatorFollowsBadges();
}

BOOL added::checkBadges(SpringBoard *, SEL) {
    if (locked || isOn(keys::runningMode)) return NO;
    NSMutableArray *hidden = [NSMutableArray array];
    for (NSString *identifier in datas)
        if (hide_per(identifier)) [hidden addObject:identifier];
    [datas removeObjectsInArray:hidden];
    return [datas count] != 0;
}

} // namespace pendix

#include "Tweak/Core/Applications.h"
#include "Tweak/Core/SettingKeys.h"
#include "Tweak/Core/Settings.h"
#include "Tweak/Core/State.h"
#include "Tweak/StatusBar/Replacements.h"
#include "Tweak/StatusBar/StatusBar.h"

namespace pendix {

namespace {

// Whether the badge is another one than when it was drawn last. Icons are drawn again without news, for
// example when their folder opens.
BOOL isNews(NSString *identifier, NSInteger badge) {
    NSNumber *value = [NSNumber numberWithInt:static_cast<int>(badge)];
    const BOOL same = [value isEqual:[drawnBadges objectForKey:identifier]];
    [drawnBadges setObject:value forKey:identifier];
    return !same;
}

// Puts the application at the head of the list, or takes it off. One that is listed keeps its place unless it
// `moves`.
void list(NSString *identifier, BOOL hasBadge, BOOL moves, NSDictionary *settings) {
    const BOOL listed = hasBadge && !hide_per(identifier, settings);
    if (listed && !moves && [datas containsObject:identifier]) return;
    [datas removeObject:identifier];
    if (listed) [datas insertObject:identifier atIndex:0];
}

// A folder draws one badge for all that it holds, so each application in it is looked at, and with news they
// go to the head together: those with the news first, the others in the order that they have. One whose badge
// is gone stays listed: only a badge of its own on the home screen takes an application off.
void listFolder(SBFolderIcon *folderIcon, NSDictionary *settings) {
    if (![folderIcon respondsToSelector:@selector(folder)]) return;
    NSMutableArray *head = [NSMutableArray array], *others = [NSMutableArray array];
    BOOL news = NO;
    for (SBApplicationIcon *icon in [[folderIcon folder] allIcons]) {
        if (![icon respondsToSelector:@selector(application)]) continue;
        NSString *identifier = identifierOf([icon application]);
        SBIconView *view = iconViewOf(identifier);
        if (!identifier || ![view respondsToSelector:@selector(icon)]) continue;
        const NSInteger badge = [[view icon] badgeValue];
        const BOOL changed = isNews(identifier, badge);
        news = news || changed;
        if (badge != 0) [changed ? head : others addObject:identifier];
    }
    for (NSString *identifier in datas)
        if ([others containsObject:identifier]) [head addObject:identifier];
    [others removeObjectsInArray:head];
    [head addObjectsFromArray:others];
    for (NSUInteger i = [head count]; i > 0; --i) list([head objectAtIndex:i - 1], YES, news, settings);
}

void listIcon(SBIcon *icon, NSDictionary *settings) {
    NSString *identifier = [icon nodeIdentifier];
    const NSInteger badge = [icon badgeValue];
    if (identifier) list(identifier, badge != 0, isNews(identifier, badge), settings);
}

} // namespace

BOOL carriesBadge(NSString *identifier) { return [[iconViewOf(identifier) icon] badgeValue] != 0; }

void keepBadgedApplications() {
    NSMutableArray *cleared = [NSMutableArray array];
    for (NSString *identifier in datas)
        if (!carriesBadge(identifier)) [cleared addObject:identifier];
    [datas removeObjectsInArray:cleared];
}

void hooked::resizeForTextImage(SBIconBadgeView *self, SEL _cmd, UIImage *image) {
    original::resizeForTextImage(self, _cmd, image);
    if (!self) return;
    if (badgeHeight == 0) badgeHeight = self.frame.size.height;
    SBIconView *iconView = (SBIconView *)self.superview;
    if (![iconView respondsToSelector:@selector(icon)]) return;
    SBIcon *icon = [iconView icon];
    NSDictionary *settings = readSettings();
    if ([icon isFolderIcon]) {
        listFolder((SBFolderIcon *)icon, settings);
    } else if (icon) {
        listIcon(icon, settings);
    }
    indicatorFollowsBadges(settings);
}

BOOL badgesAreListed(NSDictionary *settings) {
    if (locked || isOn(keys::runningMode, settings)) return NO;
    NSMutableArray *hidden = [NSMutableArray array];
    for (NSString *identifier in datas)
        if (hide_per(identifier, settings)) [hidden addObject:identifier];
    [datas removeObjectsInArray:hidden];
    return [datas count] != 0;
}

BOOL added::checkBadges(SpringBoard *, SEL) { return badgesAreListed(locked ? nil : readSettings()); }

} // namespace pendix

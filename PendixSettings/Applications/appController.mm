#include "PendixSettings/Applications/appController.h"

#include "PendixSettings/Core/PaneTranslator.h"
#include "PendixSettings/Core/Rows.h"
#include "Tweak/Core/SettingKeys.h"
#include "Tweak/Core/Settings.h"

namespace keys = pendix::keys;
namespace pane = pendix::pane;

namespace {

// nil for an entry of another kind.
NSDictionary *entryOf(NSString *identifier) {
    id entry = identifier ? pendix::setting(identifier) : nil;
    return [entry isKindOfClass:[NSDictionary class]] ? entry : nil;
}

} // namespace

@implementation appController

- (NSArray *)buildRows {
    pane::Rows rows(self);
    rows.group(@"desc_hide_perapp").toggle(keys::appHidden);
    rows.group(@"desc_badge_perapp").toggle(keys::appWithoutMark);
    return rows.list();
}

- (id)getValue:(PSSpecifier *)row {
    NSDictionary *entry = entryOf(self.navigationItem.title);
    return pane::showable([entry objectForKey:pane::getNotTranslated(row.name)]);
}

- (void)setValue:(id)value forSpecifier:(PSSpecifier *)row {
    NSString *identifier = self.navigationItem.title;
    if (!identifier || !value) return;
    NSMutableDictionary *entry = [NSMutableDictionary dictionary];
    if (NSDictionary *stored = entryOf(identifier)) [entry addEntriesFromDictionary:stored];
    [entry setObject:value forKey:pane::getNotTranslated(row.name)];
    pendix::writeSetting(identifier, entry);
}

@end

#include "PendixSettings/Configuration/configurationController.h"

#include "PendixSettings/Applications/perAppController.h"
#include "PendixSettings/Configuration/indeterminateController.h"
#include "PendixSettings/Configuration/reachController.h"
#include "PendixSettings/Core/Alerts.h"
#include "PendixSettings/Core/PaneTranslator.h"
#include "PendixSettings/Core/Rows.h"
#include "PendixSettings/Core/Sheets.h"
#include "PendixSettings/Icon/pendixIconController.h"
#include "PendixSettings/Passcode/passwordController.h"
#include "Tweak/Core/Names.h"
#include "Tweak/Core/Screen.h"
#include "Tweak/Core/SettingKeys.h"
#include "Tweak/Core/Settings.h"

#include <Activator/LAListenerSettingsViewController.h>

namespace keys = pendix::keys;
namespace pane = pendix::pane;

namespace {

// The package list of an extension that draws icons of its own.
NSString *const kOtherExtension = @"/var/lib/dpkg/info/com.a3tweaks.apex2.list";

NSString *backFooterKey() { return pendix::isOn(keys::lightScheme) ? @"desc_back_dark" : @"desc_back_light"; }

NSArray *amounts() {
    NSString *const numbers[] = {@"1", @"2", @"3", @"4", @"5"};
    return [NSArray arrayWithObjects:numbers count:pendix::isPad() ? 5 : 4];
}

} // namespace

@implementation configurationController

- (NSArray *)buildRows {
    pane::Rows rows(self);
    rows.group(@"desc_light").toggle(keys::lightScheme);
    rows.group(backFooterKey()).toggle(keys::clearBackground);
    _backGroup = rows.lastGroup();
    rows.group(@"desc_blur").toggle(keys::blursScreen);
    rows.group(@"desc_fast").toggle(keys::fastAnimations);
    rows.group(@"desc_ca").toggle(keys::cards);
    rows.group(@"desc_rech").link(keys::followsPosition, [reachController class]);
    rows.group(@"desc_close").toggle(keys::closeMarks);
    rows.group(@"desc_paging").toggle(keys::paging);
    rows.group(@"desc_b").toggle(keys::hidesBadges);
    rows.group(@"desc_newb1").link(keys::showsMarks, [indeterminateController class]);
    rows.group(@"desc_badge").toggle(keys::runningMode);
    rows.group(@"desc_amount").segments(keys::rows, amounts());
    rows.group(@"desc_act").button(@"activator", PSLinkCell, @selector(showActivatorSetup));
    rows.group(@"desc_perapp").link(@"perapp", [perAppController class]);
    rows.group(@"desc_icon").link(@"icon", [pendixIconController class]);
    rows.group(@"desc_passw").link(@"passw", [passwordController class]);
    return rows.list();
}

- (void)setValue:(id)value forSpecifier:(PSSpecifier *)row {
    NSString *label = row.identifier;
    if ([label isEqual:pane::Translator(keys::hidesBadges)]) {
        pane::offerRestart(self);
    } else if ([label isEqual:pane::Translator(keys::showsMarks)]) {
        [self announceMarks];
    } else if ([label isEqual:pane::Translator(keys::lightScheme)]) {
        [super setValue:value forSpecifier:row];
        return [self explainBack];
    } else if ([label isEqual:pane::Translator(keys::followsPosition)] && [value boolValue]) {
        pane::showNote(keys::followsPosition, @"message_rech", self);
    }
    [super setValue:value forSpecifier:row];
}

- (void)announceMarks {
    if ([[NSFileManager defaultManager] fileExistsAtPath:kOtherExtension])
        pane::showNote(@"alert", @"message_alert", self);
    else
        pane::offerRestart(self);
}

// What a clear background is clearer than depends on the appearance.
- (void)explainBack {
    pane::explain(_backGroup, backFooterKey());
    [self showAgain:_backGroup];
}

- (void)showActivatorSetup {
    LAListenerSettingsViewController *page =
        [[objc_getClass("LAListenerSettingsViewController") new] autorelease];
    if (!page) return;
    page.listenerName = pendix::names::activatorListener;
    UINavigationController *sheet = [[UINavigationController alloc] initWithRootViewController:page];
    const BOOL presented = pane::presentSheet(sheet, self, nil);
    [sheet release];
    if (!presented) return;
    UIBarButtonItem *cancel = [[UIBarButtonItem alloc] initWithTitle:pane::shownText(@"cancel")
                                                               style:UIBarButtonItemStyleBordered
                                                              target:self
                                                              action:@selector(dismissActivatorSetup)];
    page.navigationItem.rightBarButtonItem = cancel;
    [cancel release];
    page.title = @"Activator";
}

- (void)dismissActivatorSetup {
    pane::dismissSheet(nil);
}

@end

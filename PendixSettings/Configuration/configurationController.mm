#include "PendixSettings/Configuration/configurationController.h"

#include "PendixSettings/Applications/perAppController.h"
#include "PendixSettings/Configuration/indeterminateController.h"
#include "PendixSettings/Configuration/reachController.h"
#include "PendixSettings/Core/Alerts.h"
#include "PendixSettings/Core/PaneTranslator.h"
#include "PendixSettings/Core/Rows.h"
#include "PendixSettings/Icon/pendixIconController.h"
#include "PendixSettings/Passcode/passwordController.h"
#include "Tweak/Core/Names.h"
#include "Tweak/Core/Screen.h"
#include "Tweak/Core/Settings.h"

#include <Activator/LAListenerSettingsViewController.h>

namespace pane = pendix::pane;

namespace {

// The package list of an extension that draws icons of its own.
NSString *const kOtherExtension = @"/var/lib/dpkg/info/com.a3tweaks.apex2.list";

constexpr NSInteger kBackFooter = 2; // the place of the group that explains `back`

NSString *backFooterKey() { return pendix::isOn(@"light") ? @"desc_back_dark" : @"desc_back_light"; }

NSArray *amounts() {
    NSString *const numbers[] = {@"1", @"2", @"3", @"4", @"5"};
    return [NSArray arrayWithObjects:numbers count:pendix::isPad() ? 5 : 4];
}

} // namespace

@implementation configurationController

- (NSArray *)buildRows {
    pane::Rows rows(self);
    rows.group(@"desc_light").toggle(@"light");
    rows.group(backFooterKey()).toggle(@"back");
    rows.group(@"desc_blur").toggle(@"blur");
    rows.group(@"desc_fast").toggle(@"fast");
    rows.group(@"desc_ca").toggle(@"ca");
    rows.group(@"desc_rech").link(@"rech", [reachController class]);
    rows.group(@"desc_close").toggle(@"close");
    rows.group(@"desc_paging").toggle(@"paging");
    rows.group(@"desc_b").toggle(@"b");
    rows.group(@"desc_newb1").link(@"newb", [indeterminateController class]);
    rows.group(@"desc_badge").toggle(@"badge");
    rows.group(@"desc_amount").segments(@"amount", amounts());
    rows.group(@"desc_act").button(@"activator", PSLinkCell, @selector(showActivatorSetup));
    rows.group(@"desc_perapp").link(@"perapp", [perAppController class]);
    rows.group(@"desc_icon").link(@"icon", [pendixIconController class]);
    rows.group(@"desc_passw").link(@"passw", [passwordController class]);
    return rows.list();
}

- (void)setValue:(id)value forSpecifier:(PSSpecifier *)row {
    NSString *label = row.identifier;
    if ([label isEqual:pane::Translator(@"b")]) {
        pane::offerRestart(self);
    } else if ([label isEqual:pane::Translator(@"newb")]) {
        [self announceMarks];
    } else if ([label isEqual:pane::Translator(@"light")]) {
        [super setValue:value forSpecifier:row];
        return [self explainBack];
    } else if ([label isEqual:pane::Translator(@"rech")] && [value boolValue]) {
        pane::showNote(@"rech", @"message_rech", self);
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
    PSSpecifier *group = [_specifiers objectAtIndex:kBackFooter];
    [group setProperty:pane::Translator(backFooterKey()) forKey:@"footerText"];
    [self reloadSpecifierAtIndex:kBackFooter animated:YES];
}

- (void)showActivatorSetup {
    LAListenerSettingsViewController *page =
        [[objc_getClass("LAListenerSettingsViewController") new] autorelease];
    if (!page) return;
    page.listenerName = pendix::names::activatorListener;
    UINavigationController *sheet = [[UINavigationController alloc] initWithRootViewController:page];
    [self presentViewController:sheet animated:YES completion:nil];
    [sheet release];
    UIBarButtonItem *cancel = [[UIBarButtonItem alloc] initWithTitle:pane::Translator(@"cancel")
                                                               style:UIBarButtonItemStyleBordered
                                                              target:self
                                                              action:@selector(dismissActivatorSetup)];
    page.navigationItem.rightBarButtonItem = cancel;
    [cancel release];
    page.title = @"Activator";
}

- (void)dismissActivatorSetup {
    [self dismissViewControllerAnimated:YES completion:nil];
}

@end

#include "PendixSettings/Icon/colorPickerController.h"

#include "PendixSettings/Core/Alerts.h"
#include "PendixSettings/Core/PaneState.h"
#include "PendixSettings/Core/PaneTranslator.h"
#include "PendixSettings/Core/Rows.h"
#include "PendixSettings/Icon/ColorNames.h"
#include "Tweak/Core/Settings.h"

namespace pane = pendix::pane;

@implementation colorPickerController

- (NSArray *)buildRows {
    pane::Rows rows(self);
    rows.header(@"cards");
    return rows.list();
}

- (void)viewWillAppear:(BOOL)animated {
    [super viewWillAppear:animated];
    pane::measure(self.view);
    UIBarButtonItem *apply = [[UIBarButtonItem alloc] initWithTitle:pane::shownText(@"apply")
                                                              style:UIBarButtonItemStyleBordered
                                                             target:self
                                                             action:@selector(apply)];
    self.navigationItem.rightBarButtonItem = apply;
    [apply release];
    [self reloadSpecifiers];
}

// The cards are laid out for one size, so they are built anew.
- (void)willAnimateRotationToInterfaceOrientation:(UIInterfaceOrientation)orientation
                                         duration:(NSTimeInterval)duration {
    [super willAnimateRotationToInterfaceOrientation:orientation duration:duration];
    [self viewWillAppear:YES];
}

- (void)apply {
    NSMutableDictionary *settings = pendix::settingsToChange();
    if (NSString *key = pane::editedColorKey())
        [settings setObject:pane::stringFromColor(pane::ciccia) forKey:key];
    pendix::writeSettings(settings);
    pane::showNote(@"tint_color", @"message_tint", nil);
}

@end

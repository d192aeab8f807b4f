#include "PendixSettings/Configuration/indeterminateController.h"

#include "PendixSettings/Core/Alerts.h"
#include "PendixSettings/Core/PaneState.h"
#include "PendixSettings/Core/Rows.h"
#include "PendixSettings/Icon/colorPickerController.h"
#include "Tweak/Core/SettingKeys.h"

namespace keys = pendix::keys;
namespace pane = pendix::pane;

@implementation indeterminateController

- (NSArray *)specifiers {
    pane::wtf = pane::kIndeterminate;
    return [super specifiers];
}

- (NSArray *)buildRows {
    pane::Rows rows(self);
    rows.group(@"desc_newb").toggle(keys::showsMarks);
    rows.group(@"desc_auto").toggle(keys::marksTakeIconColor);
    rows.group(@"desc_colors").link(keys::markColor, [colorPickerController class]);
    return rows.list();
}

- (void)setValue:(id)value forSpecifier:(PSSpecifier *)row {
    pane::offerRestart(self);
    [super setValue:value forSpecifier:row];
}

@end

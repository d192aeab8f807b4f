#include "PendixSettings/Icon/pendixIconController.h"

#include "PendixSettings/Core/PaneState.h"
#include "PendixSettings/Core/Rows.h"
#include "PendixSettings/Icon/colorPickerController.h"
#include "Tweak/Core/SettingKeys.h"

namespace keys = pendix::keys;
namespace pane = pendix::pane;

@implementation pendixIconController

- (NSArray *)specifiers {
    pane::wtf = pane::kIcon;
    return [super specifiers];
}

- (NSArray *)buildRows {
    pane::Rows rows(self);
    rows.group(@"desc_hide").toggle(keys::hidesIndicator);
    rows.group(@"desc_hide_t").toggle(keys::hidesWithoutBadges);
    rows.group(@"desc_glow").toggle(keys::pulses);
    rows.group(@"desc_tint").link(keys::pulseColor, [colorPickerController class]);
    return rows.list();
}

@end

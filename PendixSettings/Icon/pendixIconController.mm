#include "PendixSettings/Icon/pendixIconController.h"

#include "PendixSettings/Core/PaneState.h"
#include "PendixSettings/Core/Rows.h"
#include "PendixSettings/Icon/colorPickerController.h"

namespace pane = pendix::pane;

@implementation pendixIconController

- (NSArray *)specifiers {
    pane::wtf = pane::kIcon;
    return [super specifiers];
}

- (NSArray *)buildRows {
    pane::Rows rows(self);
    rows.group(@"desc_hide").toggle(@"hide");
    rows.group(@"desc_hide_t").toggle(@"hide_t");
    rows.group(@"desc_glow").toggle(@"glow");
    rows.group(@"desc_tint").link(@"tint", [colorPickerController class]);
    return rows.list();
}

@end

#include "PendixSettings/Configuration/reachController.h"

#include "PendixSettings/Core/Rows.h"
#include "Tweak/Core/SettingKeys.h"

@implementation reachController

- (NSArray *)buildRows {
    pendix::pane::Rows rows(self);
    NSArray *positions = [NSArray arrayWithObjects:@"top", @"middle", @"bottom", nil];
    rows.group(@"desc_rech").toggle(pendix::keys::followsPosition);
    rows.group(@"desc_position").choice(pendix::keys::position, positions, [PSListItemsController class]);
    return rows.list();
}

@end

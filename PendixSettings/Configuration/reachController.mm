#include "PendixSettings/Configuration/reachController.h"

#include "PendixSettings/Core/Rows.h"

@implementation reachController

- (NSArray *)buildRows {
    pendix::pane::Rows rows(self);
    NSArray *positions = [NSArray arrayWithObjects:@"top", @"middle", @"bottom", nil];
    rows.group(@"desc_rech").toggle(@"rech");
    rows.group(@"desc_position").choice(@"position", positions, [PSListItemsController class]);
    return rows.list();
}

@end

#include "PendixSettings/Passcode/NewPSListItemsController.h"

#include "PendixSettings/Core/PaneState.h"

@implementation NewPSListItemsController

- (void)viewWillAppear:(BOOL)animated {
    [super viewWillAppear:animated];
    pendix::pane::whereShowed = YES;
}

@end

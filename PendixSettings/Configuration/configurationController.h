#pragma once

#include "PendixSettings/Configuration/RestartingListController.h"

// The main page: how the panel looks and works, and the way to everything else.
@interface configurationController : RestartingListController {
    PSSpecifier *_backGroup; // explains the clear background; not retained, one of the rows
}
- (void)showActivatorSetup;
- (void)dismissActivatorSetup;
@end

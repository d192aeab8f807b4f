#pragma once

#include "PendixSettings/Core/PendixListController.h"

// The pane's first page, and the principal class of its bundle.
@interface PendixSettingsController : PendixListController
- (void)addShareButton;
- (void)showCreators;
- (void)Tweet;
@end

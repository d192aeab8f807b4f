#pragma once

#include "PendixSettings/Configuration/RestartingListController.h"

// The mark that stands for a badge on an icon.
@interface indeterminateController : RestartingListController
@end

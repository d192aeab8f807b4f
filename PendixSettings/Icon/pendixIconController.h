#pragma once

#include "PendixSettings/Core/PendixListController.h"

// When the icon stands in the status bar, and how it pulses.
@interface pendixIconController : PendixListController
@end

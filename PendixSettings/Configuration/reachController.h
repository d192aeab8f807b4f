#pragma once

#include "PendixSettings/Core/PendixListController.h"

// Where on the screen the panel stands.
@interface reachController : PendixListController
@end

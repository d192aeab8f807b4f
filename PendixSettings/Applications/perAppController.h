#pragma once

#include "PendixSettings/Core/PendixListController.h"

// The installed applications that have an icon of their own, each with a page.
@interface perAppController : PendixListController
@end

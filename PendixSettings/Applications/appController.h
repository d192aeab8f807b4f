#pragma once

#include "PendixSettings/Core/PendixListController.h"

// One application's own settings. Its identifier is the page's title; the values stand in a dictionary of the
// settings under that.
@interface appController : PendixListController
@end

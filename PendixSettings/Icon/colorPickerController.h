#pragma once

#include "PendixSettings/Core/PendixListController.h"

// Colours to swipe through, for the glow or for the mark, whichever page led here. Nothing is stored until
// `apply`.
@interface colorPickerController : PendixListController
- (void)apply;
@end

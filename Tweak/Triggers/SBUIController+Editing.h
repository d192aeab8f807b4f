#pragma once

#include <SpringBoard/SpringBoard.h>

@interface SBUIController (PendixEditing)
// Leaves the panel's edit mode; its name notwithstanding it never enters it.
- (void)setEditing;
@end

// How the indicator follows changed settings; added to the home screen's application.
#pragma once

#include <SpringBoard/SpringBoard.h>

@interface SpringBoard (PendixSettings)
// Applies what changed in `enable`, `hide`, `hide_t` and `badge` since the last call. A timer sends it once a
// second; it does nothing while the display is off.
- (void)preferenceChangesByMe;
@end

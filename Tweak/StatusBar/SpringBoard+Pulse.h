// The indicator's pulse, and what keeps the panel on the indicator; added to the home screen's application.
#pragma once

#include <SpringBoard/SpringBoard.h>

@interface SpringBoard (PendixPulse)
// Starts the pulse in that colour unless one runs, `glow` is off or `hide` is on.
- (void)makePulse:(UIColor *)color;
// One step, sent by the pulse's own timer.
- (void)pulse:(NSTimer *)timer;
// The timer ends with its next step.
- (void)removePulse;
@end

@interface SpringBoard (PendixFollower)
// Sent every tenth of a second while the panel is shown: dims the other items and moves the panel with its
// own.
- (void)alphaStatusBar:(NSTimer *)timer;
@end

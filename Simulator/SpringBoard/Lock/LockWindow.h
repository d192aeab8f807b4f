// The window of the lock screen.
#pragma once

@class SBLockScreenView;

namespace sim {

// Made when it is first asked for.
SBLockScreenView *lockScreenView();

void showLockWindow();
// It fades; touches reach what lies below at once.
void hideLockWindow();

} // namespace sim

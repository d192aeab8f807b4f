// What the platform has beyond <SpringBoard/SBLockScreen.h>: used by the simulator and its tests only.
#pragma once

#include <SpringBoard/SBLockScreen.h>

@interface SBLockScreenManager (Further)
+ (instancetype)sharedInstanceIfExists;
- (void)lockUIFromSource:(int)source withOptions:(id)options;
// Asks for the passcode first when the device has one.
- (void)unlockUIFromSource:(int)source withOptions:(id)options;
// YES, and the lock screen goes, for the right passcode.
- (BOOL)attemptUnlockWithPasscode:(NSString *)passcode;
@end

// What the platform has beyond <BiometricKit/BiometricKit.h>: used by the simulator and its tests only.
#pragma once

#include <BiometricKit/BiometricKit.h>

@interface SBUIBiometricEventMonitor (Further)
- (void)_stopMatching;
- (BOOL)hasEnrolledIdentities;
@end

@interface BiometricKit (Further)
// Starts matching; 0 for success.
- (int)match:(id)identities;
- (int)match:(id)identities withOptions:(id)options;
@end

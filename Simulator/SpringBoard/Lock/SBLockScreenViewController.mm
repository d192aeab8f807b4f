// The lock screen's controller as others listen in on it: what it does of its own is not simulated yet.
#include "LockState.h"

#include "SpringBoard/Versions.hpp"

#include <SpringBoard/SBLockScreen.h>

namespace {

void handleDisplayTurnedOn(id, SEL) {}
void handleDisplayTurnedOnWithReason(id, SEL, id) {}

// On 8.0 the form without an argument is still the one; which form a system has, it calls.
const sim::VersionedMethod kMethods[] = {
    {"SBLockScreenViewController", "_handleDisplayTurnedOn",
     "v@:", sim::implementation(handleDisplayTurnedOn), sim::kOldest, sim::kLast80},
    {"SBLockScreenViewController", "_handleDisplayTurnedOn:", "v@:@",
     sim::implementation(handleDisplayTurnedOnWithReason), sim::kFirst81, sim::kNewest},
};
const bool kRegistered = (sim::registerVersionedMethods(kMethods), true);

} // namespace

@implementation SBLockScreenViewController

- (void)_handleDisplayTurnedOff {
}

- (void)prepareForUIUnlock {
}

- (void)finishUIUnlockFromSource:(int)source {
}

- (void)setPasscodeLockVisible:(BOOL)visible
                      animated:(BOOL)animated
              withUnlockSource:(int)source
                    andOptions:(id)options {
}

@end

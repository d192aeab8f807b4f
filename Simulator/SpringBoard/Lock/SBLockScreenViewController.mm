// The lock screen's controller: follows the finger and the display.
#include "LockScreenView.h"
#include "LockState.h"

#include "Runtime/Objc/Versions.hpp"
#include "Runtime/Process/Events.hpp"
#include "SBLockScreenManager+Further.h"
#include "UIKit/Controllers/UIViewController+Further.h"

#include <SpringBoard/SBLockScreen.h>

namespace {

void handleDisplayTurnedOn(SBLockScreenViewController *self, SEL) {
    [static_cast<SBLockScreenView *>([self view]) prepareToShow];
}

void handleDisplayTurnedOnWithReason(SBLockScreenViewController *self, SEL command, id) {
    handleDisplayTurnedOn(self, command);
}

// On 8.0 the form without an argument is still the one; which form a system has, it calls.
const sim::VersionedMethod kMethods[] = {
    {"SBLockScreenViewController", "_handleDisplayTurnedOn",
     "v@:", sim::implementation(handleDisplayTurnedOn), sim::kOldest, sim::kLast80},
    {"SBLockScreenViewController", "_handleDisplayTurnedOn:", "v@:@",
     sim::implementation(handleDisplayTurnedOnWithReason), sim::kFirst81, sim::kNewest},
};
const bool kRegistered = (sim::registerVersionedMethods(kMethods), true);

} // namespace

@interface SBLockScreenViewController (Simulator) <UIScrollViewDelegate, SBUIPasscodeLockViewDelegate>
- (SBLockScreenView *)lockView;
- (void)pageDidSettle;
@end

@implementation SBAlert
@end

@implementation SBLockScreenViewControllerBase

- (void)prepareForUIUnlock {
}

@end

@implementation SBLockScreenViewController

- (void)loadView {
    SBLockScreenView *view = [[[SBLockScreenView alloc] initWithFrame:[[UIScreen mainScreen] bounds]
                                                             passcode:sim::lockState().passcode] autorelease];
    [[view scrollView] setDelegate:self];
    [[view passcodeView] setDelegate:self];
    [self setView:view];
}

- (void)_handleDisplayTurnedOff {
}

// For others to listen in on; the lock screen itself goes when all have.
- (void)prepareForUIUnlock {
    [super prepareForUIUnlock];
}

- (void)finishUIUnlockFromSource:(int)source {
}

// Inferred: a lock screen without a passcode stays as it is.
- (void)setPasscodeLockVisible:(BOOL)visible
                      animated:(BOOL)animated
              withUnlockSource:(int)source
                    andOptions:(id)options {
    if (!sim::lockState().screenLocked) return;
    if (visible) sim::recordEvent("passcode_prompt");
    if (!sim::lockState().passcodeLocked) return;
    if (!visible) [[[self lockView] passcodeView] reset];
    CGFloat page = visible ? 0 : [[self lockView] bounds].size.width;
    [[[self lockView] scrollView] setContentOffset:CGPointMake(page, 0) animated:animated];
}

@end

@implementation SBLockScreenViewController (Simulator)

- (SBLockScreenView *)lockView {
    return static_cast<SBLockScreenView *>([self view]);
}

- (void)scrollViewDidScroll:(UIScrollView *)scrollView {
    [[self lockView] followScrolling];
}

- (void)scrollViewDidEndDragging:(UIScrollView *)scrollView willDecelerate:(BOOL)decelerate {
    if (!decelerate) [self pageDidSettle];
}
- (void)scrollViewDidEndDecelerating:(UIScrollView *)scrollView {
    [self pageDidSettle];
}

// A finger has slid the clock away: that unlocks, or asks for the passcode.
- (void)pageDidSettle {
    if ([[[self lockView] scrollView] contentOffset].x > 0 || !sim::lockState().screenLocked) return;
    if (sim::lockState().passcodeLocked) {
        sim::recordEvent("passcode_prompt");
    } else {
        [[SBLockScreenManager sharedInstance] unlockUIFromSource:0 withOptions:nil];
    }
}

- (void)passcodeLockViewPasscodeEntered:(SBUIPasscodeLockView *)view {
    if (![[SBLockScreenManager sharedInstance] attemptUnlockWithPasscode:[view passcode]])
        [view resetForFailedPasscode];
}

- (void)passcodeLockViewCancelButtonPressed:(SBUIPasscodeLockView *)view {
    [self setPasscodeLockVisible:NO animated:YES withUnlockSource:0 andOptions:nil];
}

@end

// The display's turning off and on, and the unlocking of the lock screen.
#include "Tweak/Core/Screen.h"
#include "Tweak/Core/SettingKeys.h"
#include "Tweak/Core/Settings.h"
#include "Tweak/Core/State.h"
#include "Tweak/Panel/Panel.h"
#include "Tweak/StatusBar/StatusBar.h"
#include "Tweak/Triggers/Replacements.h"

namespace pendix {

namespace {

void goDark() {
    locked = YES;
    indicatorGoesDark();
    [openThisApp release];
    openThisApp = @"";
    armLockInTheDark();
    if (isShow) [Spring dismisPendixUI];
}

void wake() {
    locked = NO;
    indicatorWakes();
}

} // namespace

void hooked::handleDisplayTurnedOff(SBLockScreenViewController *self, SEL _cmd) {
    goDark();
    original::handleDisplayTurnedOff(self, _cmd);
}

// Where the form with a reason exists, that one does the work. On 8.0 it does not exist yet.
void hooked::handleDisplayTurnedOn(SBLockScreenViewController *self, SEL _cmd) {
    original::handleDisplayTurnedOn(self, _cmd);
    if (isEight() && [self respondsToSelector:@selector(_handleDisplayTurnedOn:)]) return;
    wake();
}

void hooked::handleDisplayTurnedOnWithReason(SBLockScreenViewController *self, SEL _cmd, id reason) {
    original::handleDisplayTurnedOnWithReason(self, _cmd, reason);
    wake();
}

// Opens what was picked on the panel while the device was locked.
void hooked::prepareForUIUnlock(SBLockScreenViewController *self, SEL _cmd) {
    original::prepareForUIUnlock(self, _cmd);
    if (isShow) [Spring dismisPendixUI];
    if ([openThisApp length] == 0) return;
    NSString *identifier = [openThisApp autorelease];
    openThisApp = @"";
    [[UIApplication sharedApplication] launchApplicationWithIdentifier:identifier suspended:NO];
}

} // namespace pendix

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

// Whether the indicator may show and pulse for badges.
BOOL followsBadges() {
    return isOn(keys::enabled) && !isOn(keys::runningMode) && !isOn(keys::hidesIndicator);
}

void goDark() {
    locked = YES;
    // A pulse also ends when `glow` was turned off while it ran.
    if (needToPulse || (followsBadges() && isOn(keys::pulses))) [Spring removePulse];
    [openThisApp release];
    openThisApp = @"";
    armLockInTheDark();
    if (isShow) [Spring dismisPendixUI];
}

void wake() {
    locked = NO;
    if (!followsBadges()) return;
    // Badges that came in the dark have not moved the indicator.
    if (isOn(keys::hidesWithoutBadges)) statusbaritem.visible = [Spring checkBadges];
    if (isOn(keys::pulses) && [Spring checkBadges]) [Spring makePulse:color(keys::pulseColor, @"clear")];
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

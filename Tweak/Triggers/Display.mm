// The display's turning off and on, and the unlocking of the lock screen.
#include "Tweak/Core/Replacements.h"
#include "Tweak/Core/Screen.h"
#include "Tweak/Core/Settings.h"
#include "Tweak/Core/State.h"
#include "Tweak/Panel/SpringBoard+Panel.h"
#include "Tweak/StatusBar/SpringBoard+Badges.h"
#include "Tweak/StatusBar/SpringBoard+Pulse.h"

namespace pendix {

namespace {

// Whether the indicator may show and pulse for badges.
BOOL followsBadges() { return isOn(@"enable") && !isOn(@"badge") && !isOn(@"hide"); }

void goDark() {
    locked = YES;
    // A pulse also ends when `glow` was turned off while it ran.
    if (needToPulse || (followsBadges() && isOn(@"glow"))) [Spring removePulse];
    [openThisApp release];
    openThisApp = @"";
    if ([@"everyoff" isEqual:setting(@"where")]) needPasscode = YES;
    if (isShow) [Spring dismisPendixUI];
}

void wake() {
    locked = NO;
    if (!followsBadges()) return;
    // Badges that came in the dark have not moved the indicator.
    if (isOn(@"hide_t")) statusbaritem.visible = [Spring checkBadges];
    if (isOn(@"glow") && [Spring checkBadges]) [Spring makePulse:color(@"tint", @"clear")];
}

} // namespace

void hooked::handleDisplayTurnedOff(SBLockScreenViewController *self, SEL _cmd) {
    goDark();
    original::handleDisplayTurnedOff(self, _cmd);
}

// Where the form with a reason exists, that one does the work. On 8.0 it does not exist yet.
void hooked::handleDisplayTurnedOn(SBLockScreenViewController *self, SEL _cmd) {
    constexpr float kFirstWithReason = 8.0f;
    original::handleDisplayTurnedOn(self, _cmd);
    if (systemVersion() >= kFirstWithReason && [self respondsToSelector:@selector(_handleDisplayTurnedOn:)])
        return;
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

decltype(original::handleDisplayTurnedOff) original::handleDisplayTurnedOff = nullptr;
decltype(original::handleDisplayTurnedOn) original::handleDisplayTurnedOn = nullptr;
decltype(original::handleDisplayTurnedOnWithReason) original::handleDisplayTurnedOnWithReason = nullptr;
decltype(original::prepareForUIUnlock) original::prepareForUIUnlock = nullptr;

} // namespace pendix

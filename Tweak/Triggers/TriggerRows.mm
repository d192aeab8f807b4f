// The triggers' rows of the hook table; until the panel is built there is nothing for them to open or close,
// and the system's methods run as they are.
#include "Tweak/Core/Replacements.h"

namespace pendix {

void added::setEditing(SBUIController *, SEL) {}

BOOL hooked::clickedMenuButton(SBUIController *self, SEL _cmd) {
    return original::clickedMenuButton(self, _cmd);
}

BOOL hooked::handleMenuDoubleTap(SBUIController *self, SEL _cmd) {
    return original::handleMenuDoubleTap(self, _cmd);
}

void hooked::presentBannerForContext(SBBannerController *self, SEL _cmd, id context, NSInteger reason) {
    original::presentBannerForContext(self, _cmd, context, reason);
}

BOOL hooked::shouldCreateContextAsSecure(UIWindow *self, SEL _cmd) {
    return original::shouldCreateContextAsSecure(self, _cmd);
}

void hooked::handleDisplayTurnedOff(SBLockScreenViewController *self, SEL _cmd) {
    original::handleDisplayTurnedOff(self, _cmd);
}

void hooked::handleDisplayTurnedOn(SBLockScreenViewController *self, SEL _cmd) {
    original::handleDisplayTurnedOn(self, _cmd);
}

void hooked::handleDisplayTurnedOnWithReason(SBLockScreenViewController *self, SEL _cmd, id reason) {
    original::handleDisplayTurnedOnWithReason(self, _cmd, reason);
}

void hooked::prepareForUIUnlock(SBLockScreenViewController *self, SEL _cmd) {
    original::prepareForUIUnlock(self, _cmd);
}

decltype(original::clickedMenuButton) original::clickedMenuButton = nullptr;
decltype(original::handleMenuDoubleTap) original::handleMenuDoubleTap = nullptr;
decltype(original::presentBannerForContext) original::presentBannerForContext = nullptr;
decltype(original::shouldCreateContextAsSecure) original::shouldCreateContextAsSecure = nullptr;
decltype(original::handleDisplayTurnedOff) original::handleDisplayTurnedOff = nullptr;
decltype(original::handleDisplayTurnedOn) original::handleDisplayTurnedOn = nullptr;
decltype(original::handleDisplayTurnedOnWithReason) original::handleDisplayTurnedOnWithReason = nullptr;
decltype(original::prepareForUIUnlock) original::prepareForUIUnlock = nullptr;

} // namespace pendix

// The home button, banners, and windows over the lock screen.
#include "Tweak/Core/SettingKeys.h"
#include "Tweak/Core/Settings.h"
#include "Tweak/Core/State.h"
#include "Tweak/Panel/Panel.h"
#include "Tweak/Triggers/Replacements.h"
#include "Tweak/Triggers/SBUIController+Editing.h"
#include "Tweak/Triggers/ShowPanel.h"

namespace pendix {

void added::setEditing(SBUIController *, SEL) { endEditing(); }

BOOL hooked::clickedMenuButton(SBUIController *self, SEL _cmd) {
    if (isEditing) {
        [self setEditing];
        return YES;
    }
    if (isShow) {
        [Spring dismisPendixUI];
        return YES;
    }
    return original::clickedMenuButton(self, _cmd);
}

// Opens the panel in running mode, in place of the system's switcher.
BOOL hooked::handleMenuDoubleTap(SBUIController *self, SEL _cmd) {
    if (isEditing) {
        [self setEditing];
        return YES;
    }
    if (window.userInteractionEnabled) {
        [Spring dismisPendixUI];
        return YES;
    }
    if (isOn(keys::runningMode) && isOn(keys::enabled) && showPanel()) return YES;
    return original::handleMenuDoubleTap(self, _cmd);
}

// A banner has the screen's top to itself.
void hooked::presentBannerForContext(SBBannerController *self, SEL _cmd, id context, NSInteger reason) {
    if (isShow) [Spring dismisPendixUI];
    original::presentBannerForContext(self, _cmd, context, reason);
}

// Without it the panel would not be seen over the lock screen.
BOOL hooked::shouldCreateContextAsSecure(UIWindow *, SEL) { return YES; }

} // namespace pendix

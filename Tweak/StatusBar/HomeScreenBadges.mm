// Rows of the hook table for the look of the home screen's own badges. Restyling them is not built yet: the
// system's methods run as they are.
#include "Tweak/Core/Replacements.h"

namespace pendix {

id hooked::initBadgeView(SBIconBadgeView *self, SEL _cmd) { return original::initBadgeView(self, _cmd); }

void hooked::updateAccessoryView(SBIconView *self, SEL _cmd, BOOL animated) {
    original::updateAccessoryView(self, _cmd, animated);
}

void hooked::willActivate(SBApplication *self, SEL _cmd) { original::willActivate(self, _cmd); }

void hooked::willAnimateDeactivation(SBApplication *self, SEL _cmd, BOOL animated) {
    original::willAnimateDeactivation(self, _cmd, animated);
}

decltype(original::initBadgeView) original::initBadgeView = nullptr;
decltype(original::updateAccessoryView) original::updateAccessoryView = nullptr;
decltype(original::willActivate) original::willActivate = nullptr;
decltype(original::willAnimateDeactivation) original::willAnimateDeactivation = nullptr;

} // namespace pendix

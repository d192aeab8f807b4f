#include "Tweak/Start/HookTable.h"

#include "Tweak/Core/Replacements.h"
#include "Tweak/Lock/Replacements.h"
#include "Tweak/Panel/Replacements.h"
#include "Tweak/Start/Replacements.h"
#include "Tweak/StatusBar/Replacements.h"
#include "Tweak/Triggers/Replacements.h"

#include <Substrate/CydiaSubstrate.h>

#include <iterator>

namespace pendix {

namespace {

template <typename Function>
HookRow hook(const char *className, const char *selector, Function *replacement, Function *&original) {
    return {className,
            selector,
            HookRow::Kind::hooked,
            "",
            reinterpret_cast<IMP>(replacement),
            reinterpret_cast<IMP *>(&original)};
}

template <typename Function>
HookRow add(const char *className, const char *selector, const char *types, Function *function) {
    return {className, selector, HookRow::Kind::added, types, reinterpret_cast<IMP>(function), nullptr};
}

} // namespace

std::span<const HookRow> hookTable() {
    static const HookRow rows[] = {
        hook("SpringBoard", "applicationDidFinishLaunching:", hooked::applicationDidFinishLaunching,
             original::applicationDidFinishLaunching),
        add("SpringBoard", "removePulse", "v@:", added::removePulse),
        add("SpringBoard", "makePulse:", "v@:@", added::makePulse),
        add("SpringBoard", "pulse:", "v@:@", added::pulse),
        add("SpringBoard", "checkBadges", "c@:", added::checkBadges),
        add("SpringBoard", "pendixWillRotate:", "v@:@", added::pendixWillRotate),
        add("SpringBoard", "getSysInfoByName:", "@@:*", added::getSysInfoByName),
        add("SpringBoard", "modelIdentifier", "@@:", added::modelIdentifier),
        add("SpringBoard", "hasTouchID", "c@:", added::hasTouchID),
        add("SpringBoard", "hasBigScreen", "c@:", added::hasBigScreen),
        add("SpringBoard", "preferenceChangesByMe", "v@:", added::preferenceChangesByMe),
        add("SpringBoard", "isPendix:", "c@:@", added::isPendix),
        add("SpringBoard", "getForeGround:", "@@:i", added::getForeGround),
        add("SpringBoard", "statusBarItemViews", "@@:", added::statusBarItemViews),
        add("SpringBoard", "pendix", "@@:", added::pendix),
        add("SpringBoard", "dismisPendixUI", "v@:", added::dismisPendixUI),
        add("SpringBoard", "imageForOrientation:path:", "@@:i@", added::imageForOrientation),
        add("SpringBoard", "prepareUI:", "v@:@", added::prepareUI),
        add("SpringBoard", "unlockTap:", "v@:@", added::unlockTap),
        add("SpringBoard", "dismisPendixUIorDelete:", "v@:@", added::dismisPendixUIorDelete),
        add("SpringBoard", "tapNumber:", "v@:@", added::tapNumber),
        add("SpringBoard", "tryAgain:", "v@:@", added::tryAgain),
        add("SpringBoard", "animateError:duration:first:sign:", "v@:@iii", added::animateError),
        add("SpringBoard", "usePasscode", "v@:", added::usePasscode),
        add("SpringBoard", "useTochID", "v@:", added::useTochID),
        add("SpringBoard", "liveClock", "v@:", added::liveClock),
        add("SpringBoard", "DegreesToRadians:", "f@:f", added::degreesToRadians),
        add("SpringBoard", "DegreesToNumber:", "@@:f", added::degreesToNumber),
        add("SpringBoard", "swipeToClose:", "v@:@", added::swipeToClose),
        add("SpringBoard", "close:", "v@:@", added::close),
        add("SpringBoard", "closeIcon:", "v@:@", added::closeIcon),
        add("SpringBoard", "tapPressEvent:", "v@:@", added::tapPressEvent),
        add("SpringBoard", "longPressEvent:", "v@:@", added::longPressEvent),
        add("SpringBoard", "okay", "v@:", added::okay),
        add("SpringBoard", "dismissRequest", "v@:", added::dismissRequest),
        add("SpringBoard", "tap", "v@:", added::tap),
        add("SpringBoard", "alphaStatusBar:", "v@:@", added::alphaStatusBar),
        add("SpringBoard", "unlockPendix:", "v@:i", added::unlockPendix),
        hook("UIStatusBarItemView", "setUserInteractionEnabled:", hooked::setUserInteractionEnabled,
             original::setUserInteractionEnabled),
        add("UIStatusBarItemView", "isPendix:", "c@:@", added::isPendix),
        hook("UIStatusBarItemView", "initWithItem:data:actions:style:", hooked::initWithItem,
             original::initWithItem),
        add("SBUIController", "setEditing", "v@:", added::setEditing),
        hook("SBUIController", "clickedMenuButton", hooked::clickedMenuButton, original::clickedMenuButton),
        hook("SBUIController", "handleMenuDoubleTap", hooked::handleMenuDoubleTap,
             original::handleMenuDoubleTap),
        hook("SBBannerController", "_presentBannerForContext:reason:", hooked::presentBannerForContext,
             original::presentBannerForContext),
        hook("UIWindow", "_shouldCreateContextAsSecure", hooked::shouldCreateContextAsSecure,
             original::shouldCreateContextAsSecure),
        hook("SBLockScreenViewController", "_handleDisplayTurnedOff", hooked::handleDisplayTurnedOff,
             original::handleDisplayTurnedOff),
        hook("SBLockScreenViewController", "_handleDisplayTurnedOn", hooked::handleDisplayTurnedOn,
             original::handleDisplayTurnedOn),
        hook("SBLockScreenViewController", "_handleDisplayTurnedOn:", hooked::handleDisplayTurnedOnWithReason,
             original::handleDisplayTurnedOnWithReason),
        hook("SBLockScreenViewController", "prepareForUIUnlock", hooked::prepareForUIUnlock,
             original::prepareForUIUnlock),
        hook("UIStatusBar", "_touchShouldProduceReturnEvent", hooked::touchShouldProduceReturnEvent,
             original::touchShouldProduceReturnEvent),
        hook("SBIconBadgeView", "init", hooked::initBadgeView, original::initBadgeView),
        hook("SBIconBadgeView", "_resizeForTextImage:", hooked::resizeForTextImage,
             original::resizeForTextImage),
        hook("SBIconView", "_updateAccessoryViewWithAnimation:", hooked::updateAccessoryView,
             original::updateAccessoryView),
        hook("PKFingerprintGlyphView", "_setProgress:withDuration:forShapeLayerAtIndex:", hooked::setProgress,
             original::setProgress),
        hook("SBApplication", "willActivate", hooked::willActivate, original::willActivate),
        hook("SBApplication", "willAnimateDeactivation:", hooked::willAnimateDeactivation,
             original::willAnimateDeactivation),
        hook("UIStatusBarItemView", "accessibilityValue", hooked::accessibilityValue,
             original::accessibilityValue),
        hook("UIWindow", "accessibilityPerformEscape", hooked::performEscape, original::performEscape),
    };
    return rows;
}

void installHooks() {
    if (!objc_getClass("SpringBoard")) return;
    for (const HookRow &row : hookTable()) {
        Class target = objc_getClass(row.className);
        if (!target) continue;
        SEL selector = sel_registerName(row.selector);
        if (row.kind == HookRow::Kind::added) {
            class_addMethod(target, selector, row.replacement, row.types);
        } else if (class_getInstanceMethod(target, selector)) {
            MSHookMessageEx(target, selector, row.replacement, row.original);
        }
    }
}

} // namespace pendix

// The previous implementation of every hooked method runs exactly when it should.
#include "Names.hpp"
#include "Rules.hpp"
#include "Settings.hpp"

#include <string_view>

namespace sim {

namespace {

enum class When {
    always,          // once each time
    never,           //
    unlessPanel,     // once, unless the panel is shown or edited
    unlessTakenOver, // once, unless the panel takes the double click
    unlessOwn,       // once, but not for the extension's own views; whose it was nobody sees
};

struct HookedMethod {
    std::string_view type, selector;
    When when;
};

constexpr HookedMethod kMethods[] = {
    {"SpringBoard", "applicationDidFinishLaunching:", When::always},
    {"UIStatusBarItemView", "setUserInteractionEnabled:", When::always},
    {"UIStatusBarItemView", "initWithItem:data:actions:style:", When::always},
    {"SBUIController", "clickedMenuButton", When::unlessPanel},
    {"SBUIController", "handleMenuDoubleTap", When::unlessTakenOver},
    {"SBBannerController", "_presentBannerForContext:reason:", When::always},
    {"UIWindow", "_shouldCreateContextAsSecure", When::never},
    {"SBLockScreenViewController", "_handleDisplayTurnedOff", When::always},
    {"SBLockScreenViewController", "_handleDisplayTurnedOn", When::always},
    {"SBLockScreenViewController", "_handleDisplayTurnedOn:", When::always},
    {"SBLockScreenViewController", "prepareForUIUnlock", When::always},
    {"UIStatusBar", "_touchShouldProduceReturnEvent", When::never},
    {"SBIconBadgeView", "init", When::always},
    {"SBIconBadgeView", "_resizeForTextImage:", When::always},
    {"SBIconView", "_updateAccessoryViewWithAnimation:", When::always},
    {"PKFingerprintGlyphView", "_setProgress:withDuration:forShapeLayerAtIndex:", When::always},
    {"SBApplication", "willActivate", When::always},
    {"SBApplication", "willAnimateDeactivation:", When::always},
    {"UIStatusBarItemView", "accessibilityValue", When::unlessOwn},
    {"UIWindow", "accessibilityPerformEscape", When::unlessOwn},
};

const HookedMethod *methodOf(const SeenHook &hook) {
    for (const auto &method : kMethods)
        if (method.type == hook.type && method.selector == hook.selector) return &method;
    return nullptr;
}

// A double click: edit mode and a live overlay take it; otherwise running mode opens the panel with it, if
// there is an indicator to open it from. Nothing when the state at the click cannot be told any more.
std::optional<int64_t> doubleClicksPassedOn(const Moment &moment, const SeenHook &hook) {
    if (hook.state & kHookEditing) return 0;
    if (!moment.before || moment.from != moment.to || moment.settingsChanged || hook.entered != 1 ||
        moment.before->overlays.empty())
        return std::nullopt;
    if (moment.before->overlays[0].interactive) return 0;
    if (!isOn(moment.settings, "badge") || !isOn(moment.settings, "enable")) return hook.entered;
    return moment.logged(names::noItem);
}

std::optional<int64_t> passedOn(const Moment &moment, const HookedMethod &method, const SeenHook &hook) {
    switch (method.when) {
    case When::always:
        return hook.entered;
    case When::never:
        return 0;
    case When::unlessPanel:
        return hook.state & (kHookEditing | kHookShown) ? 0 : hook.entered;
    case When::unlessTakenOver:
        return doubleClicksPassedOn(moment, hook);
    case When::unlessOwn:
        break;
    }
    return std::nullopt;
}

} // namespace

void checkHooks(const Moment &moment, Memory &, Findings &findings) {
    for (const SeenHook &hook : moment.now.hooks) {
        const HookedMethod *method = methodOf(hook);
        if (!method) {
            findings.push_back(hook.type + " " + hook.selector + " is hooked");
            continue;
        }
        auto wanted = passedOn(moment, *method, hook);
        if (wanted && *wanted != hook.previous)
            findings.push_back("the previous " + hook.type + " " + hook.selector + " ran " +
                               std::to_string(hook.previous) + " times where " + std::to_string(*wanted) +
                               " are right, for " + std::to_string(hook.entered) + " calls");
    }
}

} // namespace sim

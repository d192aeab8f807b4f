#include "Tweak/Core/SettingKeys.h"
#include "Tweak/Core/Settings.h"
#include "Tweak/Core/State.h"
#include "Tweak/StatusBar/StatusBar.h"

namespace pendix {

namespace {

BOOL badgesCount() { return isOn(keys::enabled) && !isOn(keys::runningMode) && !isOn(keys::hidesIndicator); }

void showForBadges() {
    if (isOn(keys::hidesWithoutBadges)) statusbaritem.visible = [Spring checkBadges];
}

void startPulse() { [Spring makePulse:color(keys::pulseColor, @"clear")]; }

} // namespace

BOOL mayPulse() { return isOn(keys::pulses) && !isOn(keys::hidesIndicator); }

void indicatorFollowsBadges() {
    if (locked || !badgesCount()) return;
    showForBadges();
    if (!isOn(keys::pulses)) {
        if (needToPulse) [Spring removePulse];
    } else if ([Spring checkBadges]) {
        startPulse();
    } else {
        [Spring removePulse];
    }
}

void indicatorFollowsSettings() {
    const BOOL mayShow = lastEnable && !lastHide;
    statusbaritem.visible = mayShow && (!lastTempor || [Spring checkBadges]);
}

// A pulse also ends when `glow` was turned off while it ran.
void indicatorGoesDark() {
    if (needToPulse || (badgesCount() && isOn(keys::pulses))) [Spring removePulse];
}

// No pulse runs in the dark that would have to end.
void indicatorWakes() {
    if (!badgesCount()) return;
    showForBadges();
    if (isOn(keys::pulses) && [Spring checkBadges]) startPulse();
}

} // namespace pendix

#include "Tweak/Core/Names.h"
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

// The pulse first, while the item has a view to be given its strength back.
void hide() {
    if (needToPulse) [Spring removePulse];
    statusbaritem.visible = NO;
}

void startPulse() { [Spring makePulse:color(keys::pulseColor, @"clear")]; }

} // namespace

BOOL mayPulse() { return isOn(keys::pulses) && !isOn(keys::hidesIndicator); }

void indicatorFollowsBadges(NSDictionary *settings) {
    if (locked || !isOn(keys::enabled, settings)) return;
    const BOOL running = isOn(keys::runningMode, settings), hidden = isOn(keys::hidesIndicator, settings);
    if (hidden) hide();
    if (hidden || running) return;
    const BOOL onlyWithBadges = isOn(keys::hidesWithoutBadges, settings),
               pulses = isOn(keys::pulses, settings);
    const BOOL listed = (onlyWithBadges || pulses) && badgesAreListed(settings);
    if (onlyWithBadges) statusbaritem.visible = listed;
    if (pulses && listed) {
        [Spring makePulse:color(keys::pulseColor, @"clear", settings)];
    } else if (pulses || needToPulse) {
        [Spring removePulse];
    }
}

void indicatorFollowsSettings(const WatchedSettings &now) {
    const BOOL visibility =
        now.enable != lastEnable || now.hide != lastHide || now.onlyWithBadges != lastTempor;
    const BOOL mode = now.running != lastSwitcher;
    if (!visibility && !mode) return;
    lastEnable = now.enable;
    lastHide = now.hide;
    lastTempor = now.onlyWithBadges;
    lastSwitcher = now.running;

    const BOOL shows = now.enable && !now.hide;
    const BOOL pulses = shows && !now.running && isOn(keys::pulses);
    const BOOL listed = (pulses || (visibility && shows && now.onlyWithBadges)) && [Spring checkBadges];
    // Before the item goes, while it has a view to be given its strength back.
    if ((mode && now.running) || (needToPulse && !(pulses && listed))) [Spring removePulse];
    if (visibility) statusbaritem.visible = shows && (!now.onlyWithBadges || listed);
    if (mode) statusbaritem.imageName = now.running ? names::switcherImage : names::badgeImage;
    if (pulses && listed && !needToPulse) startPulse();
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

#include "Tweak/Core/SettingKeys.h"
#include "Tweak/Core/Settings.h"
#include "Tweak/Core/State.h"
#include "Tweak/Start/Replacements.h"
#include "Tweak/StatusBar/StatusBar.h"

namespace pendix {

void added::preferenceChangesByMe(SpringBoard *, SEL) {
    if (locked) return;
    indicatorFollowsSettings({.enable = isOn(keys::enabled),
                              .hide = isOn(keys::hidesIndicator),
                              .onlyWithBadges = isOn(keys::hidesWithoutBadges),
                              .running = isOn(keys::runningMode)});
}

} // namespace pendix

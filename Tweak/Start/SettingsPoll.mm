#include "Tweak/Core/Names.h"
#include "Tweak/Core/SettingKeys.h"
#include "Tweak/Core/Settings.h"
#include "Tweak/Core/State.h"
#include "Tweak/Start/Replacements.h"
#include "Tweak/StatusBar/StatusBar.h"

namespace pendix {

void added::preferenceChangesByMe(SpringBoard *self, SEL) {
    if (locked) return;
    BOOL enable = isOn(keys::enabled), hide = isOn(keys::hidesIndicator),
         tempor = isOn(keys::hidesWithoutBadges);
    if (enable != lastEnable || hide != lastHide || tempor != lastTempor) {
        lastEnable = enable;
        lastHide = hide;
        lastTempor = tempor;
        indicatorFollowsSettings();
    }
    BOOL switcher = isOn(keys::runningMode);
    if (switcher == lastSwitcher) return;
    lastSwitcher = switcher;
    statusbaritem.imageName = switcher ? names::switcherImage : names::badgeImage;
    if (switcher) [self removePulse];
}

} // namespace pendix

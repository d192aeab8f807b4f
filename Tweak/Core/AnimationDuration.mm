#include "Tweak/Core/AnimationDuration.h"

#include "Tweak/Core/SettingKeys.h"
#include "Tweak/Core/Settings.h"

namespace pendix {

float animationDuration(float seconds) {
    constexpr float kFast = 0.25f;
    return isOn(keys::fastAnimations) ? seconds * kFast : seconds;
}

} // namespace pendix

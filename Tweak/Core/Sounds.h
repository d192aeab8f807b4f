// The system's own sounds by their numbers.
#pragma once

#include <AudioToolbox/AudioServices.h>

namespace pendix::sounds {

constexpr SystemSoundID keyClick = 1104, vibration = kSystemSoundID_Vibrate;

} // namespace pendix::sounds

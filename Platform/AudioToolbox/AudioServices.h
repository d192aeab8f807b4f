// Short sounds, and the vibration.
#pragma once

#include <stdint.h>

typedef uint32_t SystemSoundID;
enum { kSystemSoundID_Vibrate = 4095 };

extern "C" {
// Returns at once. Unknown sounds are silent.
void AudioServicesPlaySystemSound(SystemSoundID sound);
}

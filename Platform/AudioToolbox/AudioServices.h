#pragma once

#include <stdint.h>

typedef uint32_t SystemSoundID;

extern "C" {
// Returns at once. Unknown sounds are silent; 4095 vibrates.
void AudioServicesPlaySystemSound(SystemSoundID sound);
}

// System sounds: silent here, but noted.
#include "Events.hpp"

#include <AudioToolbox/AudioServices.h>

extern "C" __attribute__((visibility("default"))) void AudioServicesPlaySystemSound(SystemSoundID sound) {
    sim::recordEvent("sound", sim::Object{{"id", sound}});
}

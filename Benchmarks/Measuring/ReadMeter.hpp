// Tells the time in settings reads, the bulk of many actions and set by the design, from that of the rest.
#pragma once

#include <cstddef>

namespace bench {

enum class Metering {
    off,
    time,   // the processor time of the reads is added up
    exclude // instruction counting stops during a read
};

// Goes around the call by which dictionaries are read from files. After the boot, which installs that call.
void installReadMeter();
void setMetering(Metering metering);
// The seconds that were added up since the last call, of reads of any file.
double takeReadSeconds();

// Parses of the settings file so far.
size_t settingsReads();

// This thread's processor time in seconds.
double processorTime();

} // namespace bench

// Whether the display is on and the device locked, and what a person does to change that.
#pragma once

#include <string>

namespace sim {

struct LockState {
    bool passcode = false;       // the device has one
    bool screenLocked = false;   // the lock screen is up
    bool passcodeLocked = false; // and leaving it takes the passcode
};

LockState &lockState();

// The passcode of every simulated device that has one.
extern const char *const kDevicePasscode;

// Nothing happens to a display that is so already. Turning it off locks the device.
void turnDisplay(bool on);
bool displayIsOn();

// The lock screen comes up and its display handlers do not run: as the device starts.
void startLocked();

// Out of the lock screen, by whatever it takes. Nothing happens while none can be seen.
void unlockByPerson();

} // namespace sim

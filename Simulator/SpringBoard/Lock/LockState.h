// Whether the device is locked. The lock screen itself is not simulated yet, so nothing locks it.
#pragma once

namespace sim {

struct LockState {
    bool passcode = false;       // the device has one
    bool screenLocked = false;   // the lock screen is up
    bool passcodeLocked = false; // and leaving it takes the passcode
};

LockState &lockState();

} // namespace sim

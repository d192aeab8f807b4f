// When an opening of the panel must pass the lock, and which face it opens on.
#pragma once

namespace pendix {

// The setting `where`.
enum class Where {
    everyOpening, // "every", and without a choice
    deviceLocked, // "lockscreen"
    displayOff    // "everyoff", and whatever else is stored: only the display's turning off arms the lock
};

// Whether the lock is armed from this opening on. `armed` is what it was before, `passcodeLocked` whether the
// device itself asks for its passcode.
bool armedAtOpening(Where where, bool armed, bool passcodeLocked);

// What stands in front of the list when a locked panel opens.
struct OpeningFace {
    bool finger = false;  // the Touch ID face, otherwise the keypad
    bool asks = false;    // behind the ask face
    bool listens = false; // a finger counts at once
    bool operator==(const OpeningFace &) const = default;
};

// `touchid` and `ask` are the settings. Without a sensor there is no Touch ID face.
OpeningFace openingFace(bool sensor, bool touchid, bool ask);

} // namespace pendix

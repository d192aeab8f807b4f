// Turning the device, and letting the interface down for the thumb.
#pragma once

#include <UIKit/UIKit.h>

#include <optional>

namespace sim {

// Whether the interface turns with the device: always, never, or (nothing) as this device's and version's
// does. Then tablets turn in every direction; the largest phone turns its home screen, other phones keep
// theirs and the lock screen upright; applications on phones turn on their sides and not upside down.
void letInterfaceTurn(std::optional<bool> turns);
// Asks for the device's orientation, at the launch; the interface lies as that says as soon as it is known.
void followDevice();
// A person turns the device: the notification of its new orientation goes out, then the interface turns.
void turnDevice(UIInterfaceOrientation orientation);
// Something else is in front: the interface turns to where that wants it.
void turnInterfaceAsWanted();

// On devices that offer it. false on others, where nothing happens. It ends by itself when no finger has
// touched the screen for 8 s, and whenever the interface turns.
bool setReachability(bool on);
bool reachabilityIsOn();

} // namespace sim

// Turning the device, and letting the interface down for the thumb.
#pragma once

#include <UIKit/UIKit.h>

namespace sim {

// A person turns the device: the notification of its new orientation goes out, then the interface turns
// along, upside down included, on every device. (Inferred: phones but the largest keep their home screen
// upright.)
void turnDevice(UIInterfaceOrientation orientation);

// On devices that offer it. false on others, where nothing happens.
bool setReachability(bool on);
bool reachabilityIsOn();

} // namespace sim

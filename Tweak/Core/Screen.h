// The screen and the system, as every version tells them.
#pragma once

#include <UIKit/UIKit.h>

namespace pendix {

// The main screen's bounds in points, portrait whichever way it is held: from 8.0 on the platform's own
// bounds turn with the interface.
CGRect portraitScreenBounds();

// The system version as a number, for example 7.1. From a system that does not tell, 7 or 8, by the methods
// that its home screen has.
float systemVersion();

// Whether it is 8.0 or later, where applications are known by other names and quit in other ways.
BOOL isEight();

// Whether the device is an iPad, by its model's name.
BOOL isPad();

} // namespace pendix

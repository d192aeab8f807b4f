#pragma once

#include <Preferences/Preferences.h>

// A switch whose "on" is painted with the extension's pattern.
@interface blueSwitcher : PSSwitchTableCell
@end

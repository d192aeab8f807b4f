// Reading the settings. Nothing is kept: every call parses the file anew, so that a value written by the
// settings pane counts from the next read on. A missing or unreadable file, a missing key and a value of the
// wrong kind all read as nil, 0 or NO.
#pragma once

#include <UIKit/UIColor.h>

namespace pendix {

// nil when the file is missing or unreadable.
NSDictionary *readSettings();

// nil when the key is missing.
id setting(NSString *key);
BOOL isOn(NSString *key);
// nil when the value is no string.
NSString *textSetting(NSString *key);

// The colour that `key` names; `defaultName` counts only while there is no file. Names are the platform's, in
// lower case ("black" … "yellow", "clear"); every other one, nil included, is red.
UIColor *color(NSString *key, NSString *defaultName);

// Whether the application is left out of the badge list.
BOOL hide_per(NSString *identifier);

} // namespace pendix

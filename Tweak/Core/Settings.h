// Reading and writing the settings. Nothing is kept: every call parses the file anew, so that a value written
// by the settings pane counts from the next read on. What runs for each icon and needs several values, or the
// same one for many applications, reads the file once and hands it to the calls that take it. A missing or
// unreadable file, a missing key and a value of the wrong kind all read as nil, 0 or NO.
#pragma once

#include <UIKit/UIColor.h>

namespace pendix {

// nil when the file is missing or unreadable.
NSDictionary *readSettings();

// nil when the key is missing.
id setting(NSString *key);
BOOL isOn(NSString *key);
BOOL isOn(NSString *key, NSDictionary *settings);
// nil when the value is no string.
NSString *textSetting(NSString *key);

// Every entry of the file, to be changed and written back; empty without a file that can be read.
NSMutableDictionary *settingsToChange();
// Replaces the file atomically: a reader sees either the old one or the new one. On failure the old one
// stays.
void writeSettings(NSDictionary *settings);
// One entry of the file as it is now; nothing for a nil value.
void writeSetting(NSString *key, id value);

// The colour of that name: the platform's, in lower case ("black" … "yellow", "clear"); every other name, nil
// included, is red.
UIColor *colorFrom(NSString *name);
// The colour that `key` names; `defaultName` counts only while there is no file. One that cannot be read
// names none.
UIColor *color(NSString *key, NSString *defaultName);
UIColor *color(NSString *key, NSString *defaultName, NSDictionary *settings);

// An application's own settings; NO for nil. Whether it is left out of the badge list, and whether its icon
// never gets the mark that stands for a badge.
BOOL hide_per(NSString *identifier);
BOOL hide_per(NSString *identifier, NSDictionary *settings);
BOOL badge_per(NSString *identifier, NSDictionary *settings);

} // namespace pendix

// The extension's names and numbers that the rules look for.
#pragma once

#include <cstdint>

namespace sim::names {

// Tags of the overlay's views: in the window, in the panel and in its content view.
constexpr int64_t screenBackdrop = 21, dismissView = -1, panel = 3, content = 1;
constexpr int64_t askFace = 44, fingerFace = 45, keypadFace = 46;
constexpr int64_t promptText = 100, promptCancel = 101, promptOkay = 102, pageDots = 56;
constexpr int64_t itemIcon = 1, itemBadge = 99, closeMark = -1;
constexpr int64_t item = 0, clockItem = 10; // on the strip
// On a keypad: each digit's key ten times the digit, and the zero after the nine.
constexpr int64_t keyStep = 10, zeroKey = 100;
constexpr bool isKey(int64_t tag) { return tag >= keyStep && tag <= zeroKey && tag % keyStep == 0; }
constexpr const char *strip = "NewUIScrollView"; // the class of the view that holds the items

// Lines of the log.
constexpr const char *opening = "<Pendix> Loading Pendix UI!";
constexpr const char *closing = "<Pendix> Pendix's UI dismissing!";
constexpr const char *pulsing = "<Pendix> Pulsing!";
constexpr const char *noItem = "<Pendix> Error while showing UI!";

} // namespace sim::names

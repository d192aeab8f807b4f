// What the system says of its own parts, in the device's language: English, Italian or Spanish, else English.
#pragma once

#include <string>

namespace sim {

struct SpokenTexts {
    const char *page;               // "Page %d of %d"
    const char *signal, *wifi;      // "%d of 5 signal bars"
    const char *battery;            // "%d%% battery power"
    const char *deleteKey;          // of a keyboard
    const char *newItem, *newItems; // "%s new items", after an icon's name
};
const SpokenTexts &spokenTexts();

// "Page 2 of 3"
std::string pageText(int page, int pages);

} // namespace sim

// What the lock screen and banners say, in the device's language: English, Italian or Spanish, else English.
#pragma once

#include <string>

namespace sim {

struct LockTexts {
    const char *slide, *enterPasscode, *emergency, *cancel, *erase, *now;
};
const LockTexts &lockTexts();

// A moment as the device's clock shows it; seconds since 1970.
std::string lockTime(int64_t moment); // "10:20", without the half of the day
std::string lockDate(int64_t moment); // "Sunday, March 1"

} // namespace sim

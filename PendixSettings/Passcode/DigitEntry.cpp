#include "PendixSettings/Passcode/DigitEntry.hpp"

namespace pendix::pane {

DigitEntry enterDigit(size_t length, char32_t last) {
    if (length > kDigits) return {.kept = kDigits};
    if (length > 0 && (last < U'0' || last > U'9')) return {.kept = length - 1};
    DigitEntry entry{.kept = length, .complete = length == kDigits};
    if (length > 0) entry.dot = length;
    if (!entry.complete) entry.dash = length + 1;
    return entry;
}

} // namespace pendix::pane

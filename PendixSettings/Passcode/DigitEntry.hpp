// What a change of the hidden field's text does to the four places that show a code's digits.
#pragma once

#include <cstddef>
#include <optional>

namespace pendix::pane {

inline constexpr size_t kDigits = 4;

struct DigitEntry {
    size_t kept = 0;            // so many characters of the text stay
    std::optional<size_t> dot;  // places from 1 to 4: this one becomes a dot
    std::optional<size_t> dash; // this one a dash
    bool complete = false;      // the code can be compared
};

// `length` is the text's after the change, `last` its last character, which does not matter for 0. A
// character that is no digit, and one past the fourth, is taken back and changes nothing.
DigitEntry enterDigit(size_t length, char32_t last);

} // namespace pendix::pane

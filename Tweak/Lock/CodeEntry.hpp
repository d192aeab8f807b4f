// Entering the panel's code on its keypad: which digit a key stands for, which of the four dots it fills, and
// which one the delete button clears.
#pragma once

#include <array>
#include <cstddef>
#include <optional>

namespace pendix {

constexpr int kCodeLength = 4;

// Which dots hold a digit, from the first to the last.
using FilledDots = std::array<bool, kCodeLength>;

// By the key's tag: ten times the digit, and 100 for 0.
int digitOfKey(int tag);
int keyOfDigit(int digit);

// The dot, from 0, that the next digit fills; none while all four are filled.
std::optional<int> dotToFill(const FilledDots &filled);

// The dot, from 0, that a deletion clears; none while no digit is entered. Never the fourth: its digit sets
// off the comparison.
std::optional<int> dotToClear(const FilledDots &filled);

} // namespace pendix

#include "Tweak/Lock/CodeEntry.hpp"

namespace pendix {

namespace {

constexpr int kKeyStep = 10;

} // namespace

int digitOfKey(int tag) { return tag / kKeyStep % 10; }

int keyOfDigit(int digit) { return (digit == 0 ? 10 : digit) * kKeyStep; }

std::optional<int> dotToFill(const FilledDots &filled) {
    for (int dot = 0; dot < kCodeLength; ++dot)
        if (!filled[static_cast<std::size_t>(dot)]) return dot;
    return std::nullopt;
}

std::optional<int> dotToClear(const FilledDots &filled) {
    for (int dot = kCodeLength - 2; dot >= 0; --dot)
        if (filled[static_cast<std::size_t>(dot)]) return dot;
    return std::nullopt;
}

} // namespace pendix

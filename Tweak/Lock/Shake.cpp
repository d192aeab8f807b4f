#include "Tweak/Lock/Shake.hpp"

namespace pendix {

std::optional<ShakeMove> nextMove(const ShakeMove &move) {
    constexpr int kLess = 10;
    if (move.left == 0) return std::nullopt;
    return ShakeMove{2 * move.left - kLess, move.left - kLess, -move.sign};
}

} // namespace pendix

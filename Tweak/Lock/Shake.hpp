// How the passcode dots shake their head at a wrong code: from side to side, a little less each time, and
// back to where they began.
#pragma once

#include <optional>

namespace pendix {

struct ShakeMove {
    int distance = 50; // points
    int left = 50;     // what runs out: 0 with the last move
    int sign = -1;     // to the left first
    bool operator==(const ShakeMove &) const = default;
};

// How far a move goes, in points of x.
inline int offset(const ShakeMove &move) { return move.distance * move.sign; }

// The move after this one; none after the last.
std::optional<ShakeMove> nextMove(const ShakeMove &move);

} // namespace pendix

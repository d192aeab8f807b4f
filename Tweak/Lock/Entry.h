// A code or a finger takes a moment until it unlocks: the last dot fills, the glyph ticks. By then the
// display may have gone off, or another panel may be open.
#pragma once

#include "Tweak/Core/State.h"

namespace pendix {

// Made when something is entered. It counts for the panel into which it was entered, and only until something
// arms the lock again; a panel that merely closes does not take it back.
class Entry {
public:
    BOOL counts() const { return round_ == lockRound; }

private:
    unsigned round_ = lockRound;
};

} // namespace pendix

// One key, as a table of keys gives it.
#pragma once

#include "Keyboard.h"

namespace sim {

struct KeyLook {
    const char *text;    // empty: deletes
    const char *letters; // in small print below
};

// `pad`: a key of the pad of digits, which fills its cell.
UIKeyboardKey *makeKey(const KeyLook &look, bool pad);

} // namespace sim

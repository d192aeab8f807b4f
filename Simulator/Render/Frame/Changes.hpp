// What differs between two frames.
#pragma once

#include "Items.hpp"

namespace render {

// Items [first, end) of the frame before and of the new one that no longer look alike; either may be empty.
struct Change {
    int oldFirst, oldEnd;
    int newFirst, newEnd;
};

// Recognises the items of the frame before (sets Item::before; siblings keep their order) and hands on what
// was kept for them as far as it is still good.
std::vector<Change> compareFrames(const Items &before, Items &now);

} // namespace render

// Blocks of a device's code: what the platform passes to them is checked.
#pragma once

#include "Image.hpp"
#include "Runtime/MachO/File/Metadata.hpp"

namespace sim {

// Lets the arguments of blocks be checked whose code lies in the image: global ones now, others when they are
// copied to the heap, which is before the platform runs them later.
void checkBlocks(const Image &image, const macho::Metadata &metadata);

} // namespace sim

// Blocks: the compiler's public block ABI, with blocks as objects that retain what they capture.
// Debian's own blocks runtime does not retain captured objects, so the simulated processes carry this one.
#pragma once

#include <cstddef>

namespace sim {

// Makes block literals answer messages (copy, retain, release, isKindOfClass:). First call in main().
void installBlocks();

// Blocks on the heap: copied and not yet released.
size_t liveBlocks();

// Called with each block right after it was copied to the heap.
void onBlockCopied(void (*observer)(void *block));

} // namespace sim

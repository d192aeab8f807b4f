// Blocks: the compiler's public block ABI, with blocks as objects that retain what they capture.
// Debian's own blocks runtime does not retain captured objects, so the simulated processes carry this one.
#pragma once

namespace sim {

// Makes block literals answer messages (copy, retain, release, isKindOfClass:). First call in main().
void installBlocks();

} // namespace sim

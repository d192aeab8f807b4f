// What a simulated process has to have before anything of Foundation's is used in it.
#pragma once

namespace sim {

// Blocks, the count of live objects, Foundation's own singletons, what becomes of exceptions, and the seams
// to the clock and to property lists: all that is the same for every device. Once, first in main.
void startProcess();

} // namespace sim

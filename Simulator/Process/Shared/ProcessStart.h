// What a simulated process has to have before anything of Foundation's is used in it.
#pragma once

namespace sim {

// Blocks, the count of live objects, Foundation's own singletons, and what becomes of exceptions. Once, first
// in main.
void startProcess();

} // namespace sim

// What simulated processes took of the machine's memory.
#pragma once

#include <cstdint>
#include <sys/types.h>

namespace sim {

// Notes the most that a process has had resident so far; to be called while it runs. One that is gone, or
// has crashed, is left out.
void noteMemory(pid_t process);

// The most that any process has had resident when it was noted, in kB.
int64_t mostMemoryNoted();

} // namespace sim

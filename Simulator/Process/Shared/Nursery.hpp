// A process that is prepared once and then forked for each process that the supervisor orders: loading the
// libraries and starting the language's runtime take far longer than all that comes after.
#pragma once

#include <cstddef>

namespace sim {

// The threads of this process. Other machines' programs may run with one more than they started.
size_t threadCount();

// A program whose first connection (Descriptors.hpp) is one of packets is a nursery: it stays in this call,
// forks what the supervisor orders (ForkMessages.hpp) and ends when the supervisor is gone, and what it has
// borne ends with it. The call returns in each process that it bears, which is then like one that was started
// by itself; and in any other program at once.
//
// No thread is taken over by a fork, so it first waits until there are no more than `threads`, and ends when
// that takes more than a few seconds.
void bearProcesses(size_t threads);

} // namespace sim

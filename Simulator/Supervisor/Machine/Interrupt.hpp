// Graceful shutdown of an interrupted run: temporary folders are removed and processes end with it.
#pragma once

namespace sim {

// From now on a signal that asks the program to end (SIGINT, SIGTERM, SIGHUP) sets a flag and calls `wake`,
// which must be async-signal-safe. `debugger`: one shares the terminal, and interrupts are meant for it.
void watchInterrupts(void (*wake)(), bool debugger);

bool interrupted();

} // namespace sim

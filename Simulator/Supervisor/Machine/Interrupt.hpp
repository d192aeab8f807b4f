// An interrupted run ends in order, so that temporary folders go and processes end with it.
#pragma once

namespace sim {

// From now on a signal that asks the program to end (interrupt, terminate, hang up) sets a mark and calls
// `wake`, which must do no more than a signal handler may. `debugger`: one shares the terminal, and
// interrupts are meant for it.
void watchInterrupts(void (*wake)(), bool debugger);

bool interrupted();

} // namespace sim

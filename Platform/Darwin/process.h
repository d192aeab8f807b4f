// Signals from one process to another.
#pragma once

// Asks the process to end.
#ifndef SIGTERM
#define SIGTERM 15
#endif

extern "C" {
// Sends a signal to a process. 0, or -1 when there is none.
int kill(int process, int signal);
}

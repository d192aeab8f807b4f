#pragma once

extern "C" {
// Sends a signal to a process. 0, or -1 when there is none.
int kill(int process, int signal);
}

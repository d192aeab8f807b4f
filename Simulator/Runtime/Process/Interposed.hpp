// Interposed system calls that a simulated process must not carry out: they become events, and callbacks
// decide what follows.
#pragma once

#include <functional>

namespace sim {

// Asked for by system("killall SpringBoard"), after the event "respring".
void onRespringRequest(std::function<void()> callback);

// Signals to other processes arrive here, after the event "signal"; the answer is whether there is such a
// process. A signal of 0 only asks that, and is no event. Without a callback there are no other processes.
void onSignal(std::function<bool(int pid, int number)> callback);

} // namespace sim

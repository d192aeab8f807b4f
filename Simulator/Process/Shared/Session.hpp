// The conversation with the supervisor, from the first request to its end.
#pragma once

#include <cstdint>

namespace sim {

// Answers requests until the supervisor hangs up.
void serve();

// The home screen is to be started anew: said with the next answer, and then done with.
void askForRespring();
bool respringAsked();

// To be called whenever the clock is about to move: tells the supervisor the time, should the process die
// then.
void publishTime(int64_t nanoseconds);

} // namespace sim

// How far a run has come, in a file from which it can go on.
#pragma once

#include "Monkey.hpp"
#include "Tally.hpp"

namespace sim {

// What was done by the run of these options that the file tells of; nothing yet without a file. Throws
// std::runtime_error when it tells of another run.
Tally readProgress(const MonkeyOptions &options);

// Replaces the file in one step; does nothing when the options name none.
void writeProgress(const MonkeyOptions &options, const Tally &done);

} // namespace sim

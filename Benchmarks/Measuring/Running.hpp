// The two ways to run a case.
#pragma once

#include "Case.hpp"

namespace bench {

// By Google Benchmark, in processor time: what other programs take of the machine does not count. `arguments`
// are its own. Counters a unit: "reads" of the settings file, "read_seconds" in them, "read_floor_seconds"
// for bare reads of that number, "pixels" painted, "paint_floor_seconds" for painting them bare.
void timeCase(const Case &benchmark, std::vector<std::string> arguments);

// Once under callgrind, which dumps the counts of one round under "all NAME" and, reads of property lists
// left out, under "rest NAME"; of a launch only the former. Prints "units COUNT", what they are to be divided
// by.
void countCase(const Case &benchmark);

} // namespace bench

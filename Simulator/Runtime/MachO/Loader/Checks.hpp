// What is counted and checked while a device's code runs. A failed check ends the process, with its reason in
// the crash report: nobody can say what the device would have done.
#pragma once

#include "Runtime/MachO/File/CallShape.hpp"

#include <cstdint>
#include <map>
#include <string>

namespace sim {

enum class Passing { messageResult, functionResult, methodArgument, blockArgument };

struct Counts {
    uint64_t messages = 0;
    uint64_t small[4] = {}; // values narrower than a word, by how they were passed
    std::map<std::string, uint64_t> imports;
};
Counts &counts();

// Ends the process with that reason.
[[noreturn]] void refuseCall(const std::string &reason);

// Whether a word of that width is as both conventions want it; ends the process if not. `name` is who passes
// it.
void checkWord(uint64_t word, macho::Width width, Passing how, const char *name);

// When SIM_LOADER_REPORT names a file, a line with all counts, as JSON, is added to it at the process's end.
void reportCountsAtExit();

} // namespace sim

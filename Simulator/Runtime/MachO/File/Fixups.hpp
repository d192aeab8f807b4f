// What a loader changes in a library before it runs, from the compressed tables of its file.
#pragma once

#include "MachOFile.hpp"

#include <map>

namespace sim::macho {

struct Binding {
    std::string symbol;
    int64_t addend = 0;
};

struct Fixups {
    std::vector<uint64_t> rebases; // addresses of words that move with the library
    std::map<uint64_t, Binding>
        bindings; // by the address of the word; lazy ones too, which are bound at once
};

// Every address is that of a whole word in a writable segment's part that the file holds. Throws Error.
Fixups readFixups(const File &file);

} // namespace sim::macho

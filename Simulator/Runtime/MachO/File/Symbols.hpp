// Names for addresses in a device's library, from its own symbols.
#pragma once

#include "MachOFile.hpp"

namespace sim::macho {

// The function (or other symbol) that an address lies in, as the compiler's language spells it; empty when
// none begins before it.
std::string symbolAt(const File &file, uint64_t address);

// Lines "frame PATH+0xOFFSET" of which the path is such a library become "FUNCTION in LIBRARY"; all others
// stay.
std::string nameFrames(const std::string &report);

} // namespace sim::macho

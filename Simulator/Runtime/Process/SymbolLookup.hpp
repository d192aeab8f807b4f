// Functions and variables that a library asks for by name, as far as the simulated system has them.
#pragma once

#include "Device.hpp"

#include <span>
#include <string>

namespace sim {

struct SymbolVersions {
    const char *name; // without a leading underscore
    Version first, last;
};

// To be called while the program starts, from initialisers of any unit. The rows are not copied.
void registerSymbolVersions(std::span<const SymbolVersions> rows);

// Whether the simulated system's version lacks the symbol, whatever this program has.
bool lacksSymbol(const std::string &name);

// Where the platform's symbol lies; a null pointer when it has none.
void *platformSymbol(const std::string &name);

} // namespace sim

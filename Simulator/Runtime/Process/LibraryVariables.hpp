// Variables of loaded libraries, looked up by symbol name in the symbol table: hidden ones too.
#pragma once

#include <string>

namespace sim {

// Where the variable lies; nullptr when no library outside the system's own folders defines that symbol, or
// when the libraries carry no symbols. A library that is loaded later is found once it is.
void *libraryVariable(const std::string &symbol);

} // namespace sim

// Loads a library as a device loads it: the arm64 code of a Mach-O file, in a process for that processor.
// What it imports is found among the platform's own functions and classes; where the device's conventions and
// the ones here differ, something stands between.
#pragma once

#include <string>

namespace sim {

// Whether the file is of a device's kind. A file that cannot be read is not.
bool isDeviceLibrary(const std::string &path);

// Loads it and runs its initialisers; it stays as long as the process. Throws std::runtime_error that says
// what is wrong: a broken file with the offset, a symbol or class that the platform lacks with its name, or
// that this process is for another processor. Nothing has been given to the language runtime then, unless a
// class could not be made.
void loadDeviceLibrary(const std::string &path);

// The address of what a loaded library defines, hidden or not, by the name that a linker has for it here;
// null when there is no such symbol.
void *deviceSymbol(const std::string &name);

} // namespace sim

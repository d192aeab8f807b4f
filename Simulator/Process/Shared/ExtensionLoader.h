// Loads extensions into the process, as the hook engine of a device does when a process starts.
#pragma once

#include <string>

namespace sim {

// Loads each library of /Library/MobileSubstrate/DynamicLibraries whose filter names the process, by its
// bundle identifier or the name of its executable, in the order of their names. A filter without a library is
// passed over. Throws BadRequest naming the library that cannot be loaded, or whose classes do not fit the
// platform's.
void loadExtensions(const std::string &bundle, const std::string &executable);

// Loads one library by its path on the device. Throws BadRequest likewise.
void loadLibrary(const std::string &devicePath);

} // namespace sim

// Foundation's own way of keeping dictionaries and arrays in files, as the platform has it.
#pragma once

#include <cstddef>
#include <string>

namespace sim {

// Replaces, for dictionaries and arrays, mutable ones included, reading from and writing to a file. Reading
// takes every form of property list and gives nil for a file that is missing, unreadable, damaged, too long
// or of another kind. Writing is XML; NO when something has no property-list form or the file cannot be
// written.
void installPropertyLists();

struct FileCounts {
    size_t reads = 0;  // times that the file was there and was parsed
    size_t writes = 0; // times that it was written whole
};

// Names the file, by its path on the device, whose reads and writes through the methods above are counted.
void watchFile(const std::string &devicePath);
FileCounts fileCounts();
void resetFileCounts();

} // namespace sim

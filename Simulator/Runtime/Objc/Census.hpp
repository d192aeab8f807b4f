// Counts of live objects by class, for finding leaks.
#pragma once

#include <cstddef>
#include <map>
#include <string>

namespace sim {

// Objects of Foundation's clusters count from the program's start; those of other classes from this call on,
// which belongs to the beginning of main().
void installCensus();

// By class name, without the classes that have none. Foundation's mutable collections count with the
// immutable ones, which they may become ("GSArray" for both). Any other object that changed its class while
// it lived is taken off the class that it had at its end; a count never shows below zero.
std::map<std::string, size_t> liveObjects();

// How many observers have been added to a notification centre so far; those that were taken off again count.
size_t observersAdded();

// Of that very class, without subclasses.
size_t liveCount(const char *className);

} // namespace sim

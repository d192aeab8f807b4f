// The keys of the settings file, and what a person, a fault or another program may put there.
#pragma once

#include "Random.hpp"
#include "Runtime/Values/Value.hpp"

namespace sim {

// A key: most often a common one, now and then an application's identifier or one that nobody knows.
std::string anyKey(Random &random, const std::vector<std::string> &applications);

// What the key may hold.
Value legalValue(Random &random, const std::string &key);
// Of the wrong kind or beyond all bounds.
Value illegalValue(Random &random);

// A file that is in order; most often the extension is switched on in it.
Object legalSettings(Random &random, const std::vector<std::string> &applications);

// The bytes of a file that is none: cut off, of another form, empty or noise.
std::string brokenFile(Random &random);

// The codes that are chosen from.
const std::vector<std::string> &codes();

} // namespace sim

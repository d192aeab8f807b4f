// Variables of a loaded library as values.
#pragma once

#include "Runtime/Values/Value.hpp"

namespace sim {

// Takes the variables that are to be read, an object of symbols by the name that they are to have in the
// answers; those whose value is a byte that says yes or no are named in `flags`, those whose value is a list
// of texts in `lists`. Returns the names of those that no library has.
Array watchVariables(const Object &flags, const Object &lists);

// The values of them by name: booleans, and arrays of texts (null while there is no list).
Value watchedVariables();

// The place of a flag; nullptr when it is not watched.
const signed char *watchedFlag(const std::string &name);

} // namespace sim

// A hint for the name of a function that does not exist.
#pragma once

#include <string>

namespace sim {

// "; did you mean 'expect_eq'?" when `error` is the interpreter's word for the call of a global that is nil;
// a method of a phone is meant where its name is the nearest. Nothing otherwise.
std::string misspeltGlobal(const std::string &error);

} // namespace sim

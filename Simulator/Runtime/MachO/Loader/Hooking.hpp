// How a device's code gives methods to classes and replaces them: its functions, with what checks the
// arguments that the platform's code passes to them, and the results of what ran before.
#pragma once

#include "Runtime/MachO/File/CallShape.hpp"

#include <objc/runtime.h>

#include <string>

extern "C" {

void simHookMessage(Class target, SEL selector, IMP replacement, IMP *previous);
BOOL simAddMethod(Class target, SEL selector, IMP implementation, const char *types);

} // extern "C"

namespace sim {

// The implementation as it is given to a class or as a block's code. Throws std::runtime_error for types that
// the two conventions pass differently.
IMP enteredFromHere(IMP implementation, const char *types, const std::string &name, bool block = false);

} // namespace sim

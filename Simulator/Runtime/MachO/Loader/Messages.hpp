// The messages that a device's code sends, over the language runtime of this machine.
#pragma once

#include <objc/objc.h>

#include <string>

extern "C" {

// What the device's compiler calls for every message, with the arguments of the method in their registers.
void simMessageSend();
// The same to the superclass, with the receiver and the class that sends in the structure at x0.
void simMessageSendSuper();

} // extern "C"

namespace sim {

// Throws std::runtime_error when a message of that name could not be passed on: a method with variable
// arguments that nobody translates.
void checkSelector(const std::string &name);

// Those of the selectors that the device's code uses whose methods, in any class here, take arguments that
// the two conventions pass differently. Throws std::runtime_error naming the first such method.
void checkMethodsHere(const std::string *names, size_t count);

} // namespace sim

// Small pieces of machine code between two functions, which look at what is passed. They lie outside of every
// loaded file, as the device's code does: who asks where a call came from is told that it came from there.
#pragma once

#include "Checks.hpp"

#include <string>

namespace sim {

// What a thunk knows. The assembly reads `target` at offset 0.
struct Route {
    void *target;
    std::string name; // for messages
    Passing how;
    macho::CallShape shape;
};

// Calls on to the route's target and checks its result. Only where no argument lies on the stack.
void *checkedResult(Route &route);
// Checks the arguments in registers and goes on in the route's target.
void *checkedArguments(Route &route);

// Code that calls the target of the route in x17 and checks the result; what checkedResult() leads to.
void *resultChecker();

} // namespace sim

// Trampolines: machine-code stubs in front of implementations of methods, which report each call. x86-64 and
// aarch64, System V calling conventions: every argument register is kept.
#pragma once

#include <functional>

namespace sim {

// Makes a stub that calls `note` and then goes on in `target` with the arguments as they came.
// The stub lives as long as the process.
void *makeStub(void *target, std::function<void()> note);

// Where a stub goes on, through any number of them; what is no stub is its own.
void *behindStubs(void *implementation);

} // namespace sim

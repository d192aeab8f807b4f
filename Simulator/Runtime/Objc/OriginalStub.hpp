// Small machine-code stubs in front of implementations of methods, so that whoever put one there hears of
// each run. Every argument register is kept: of x86-64 or aarch64, by the System V conventions.
#pragma once

#include <functional>

namespace sim {

// Makes a stub that calls `note` and then goes on in `target` with the arguments as they came.
// The stub lives as long as the process.
void *makeStub(void *target, std::function<void()> note);

// Where a stub goes on, through any number of them; what is no stub is its own.
void *behindStubs(void *implementation);

} // namespace sim

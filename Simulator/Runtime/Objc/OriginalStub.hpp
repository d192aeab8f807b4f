// Small machine-code stubs in front of the previous implementations of hooked methods, so that a run of one
// becomes an event. x86-64, System V calling convention: every argument register is kept.
#pragma once

#include <functional>

namespace sim {

// Makes a stub that calls `note` and then goes on in `target` with the arguments as they came.
// The stub lives as long as the process.
void *makeOriginalStub(void *target, std::function<void()> note);

} // namespace sim

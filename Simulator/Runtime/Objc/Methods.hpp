// Changing classes of gcc's Objective-C runtime from outside.
#pragma once

#include <objc/runtime.h>

namespace sim {

// clang marks metaclasses with a bit that the runtime reads as "still under construction", and refuses to
// add methods to them. Clears it; harmless on every other class.
void finishConstruction(Class target);

// Gives `target` itself the implementation, whether it has the method or inherits it, and returns the one
// that ran before. The method must exist.
IMP replaceMethod(Class target, SEL selector, IMP implementation);

} // namespace sim

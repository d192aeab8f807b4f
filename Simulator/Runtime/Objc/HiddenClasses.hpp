// Classes that exist in the program but not on the simulated system.
#pragma once

#include <objc/runtime.h>

namespace sim {

// The class of that name, hidden or not; nil when there is none.
Class findHiddenClass(const char *name);

} // namespace sim

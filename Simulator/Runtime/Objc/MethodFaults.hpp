// Fault injection: methods that the system has, but not for extensions, to see how an extension copes with a
// look-up that finds nothing. The system's own code is not touched.
#pragma once

#include <objc/runtime.h>

#include <string>

namespace sim {

// Both take "Class selector", a class method as "Class +selector", count for subclasses as well, and return
// false when there is no such method. They throw std::invalid_argument for a text of another form. Only code
// that is loaded after the first call is taken for an extension's.

// From now on an extension that asks for the method finds none: class_getInstanceMethod, respondsToSelector:
// and hooks. A message that it sends without asking still arrives.
bool hideMethod(const std::string &name);

// From now on the method does nothing and gives nil, NO or 0 when an extension calls it, in subclasses that
// exist by now also where they override it. Throws std::invalid_argument for a method that takes or gives
// something else than objects, integers and pointers.
bool silenceMethod(const std::string &name);

// Whether extensions are not to find it.
bool isMethodHidden(Class target, SEL selector);

} // namespace sim

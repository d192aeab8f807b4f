// Which classes and methods the simulated system version has. The runtime cannot take a method away again, so
// methods that some versions lack stand in no @implementation but in tables, and are added at boot.
#pragma once

#include "Runtime/Process/Device.hpp"

#include <objc/runtime.h>

#include <span>
#include <string>

namespace sim {

struct VersionedMethod {
    const char *className;
    const char *selector; // with a leading "+" a class method
    const char *types;    // the encoding as on this machine
    IMP function;
    Version first, last; // both have it
};

struct ClassVersions {
    const char *name;
    Version first, last; // both have it
};

// To be called while the program starts, from initialisers of any unit. The rows are not copied.
void registerVersionedMethods(std::span<const VersionedMethod> rows);
void registerClassVersions(std::span<const ClassVersions> rows);

// Once at boot, before the first of the classes is used: adds the methods that `version` has and hides the
// classes that it lacks. Throws std::logic_error for a row whose class does not exist or has the method
// already.
void applyAvailability(Version version);

// From now on nobody in this process finds the class by its name. Code that names it in its own text, and its
// subclasses, go on having it.
void hideClass(const std::string &name);

} // namespace sim

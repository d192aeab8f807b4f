// The fragile base class problem: instance variables lie where the compiler put them, and a library that was
// compiled against another layout of a superclass writes over that class's variables. Detected before it does
// harm.
#pragma once

#include <objc/runtime.h>

#include <span>
#include <string>
#include <vector>

namespace sim {

// The classes that a loaded library (or the program itself) defines, by the path it was loaded from, sorted
// by name.
std::vector<Class> classesOf(const std::string &libraryPath);
// Those that the program itself defines.
std::vector<Class> classesOfProgram();

// A sentence for each instance variable that lies within the superclass's own, as the process has that class,
// and for each class that is smaller than its superclass. Empty when all is well.
std::vector<std::string> brokenLayouts(std::span<const Class> classes);

} // namespace sim

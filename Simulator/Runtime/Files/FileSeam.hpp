// Defining a call of a system library in the program itself: the dynamic linker then hands this one to every
// library of the process, and NEXT leads on to the library's own.
#pragma once

#include "SandboxPath.hpp"

#include <dlfcn.h>

#define SEAM extern "C" __attribute__((visibility("default")))

#define NEXT(call)                                                                                           \
    ([]() {                                                                                                  \
        static const auto next = reinterpret_cast<decltype(&::call)>(dlsym(RTLD_NEXT, #call));               \
        return next;                                                                                         \
    }())

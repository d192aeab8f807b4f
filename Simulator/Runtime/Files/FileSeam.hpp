// Symbol interposition: a call of a system library is defined in the program itself, the dynamic linker binds
// every library of the process to that one, and NEXT is the library's own.
#pragma once

#include "SandboxPath.hpp"

#include <dlfcn.h>

#define SEAM extern "C" __attribute__((visibility("default")))

#define NEXT(call)                                                                                           \
    ([]() {                                                                                                  \
        static const auto next = reinterpret_cast<decltype(&::call)>(dlsym(RTLD_NEXT, #call));               \
        return next;                                                                                         \
    }())

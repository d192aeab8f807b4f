#include "SymbolLookup.hpp"

#include <dlfcn.h>
#include <vector>

namespace sim {

namespace {

std::vector<std::span<const SymbolVersions>> &tables() {
    static std::vector<std::span<const SymbolVersions>> registered;
    return registered;
}

} // namespace

void registerSymbolVersions(std::span<const SymbolVersions> rows) { tables().push_back(rows); }

bool lacksSymbol(const std::string &name) {
    Version version = device().version;
    for (auto rows : tables())
        for (const auto &row : rows)
            if (name == row.name && (version < row.first || row.last < version)) return true;
    return false;
}

// Sanitizers look their own functions up before they watch anything: what they call must not be watched.
#define UNWATCHED __attribute__((no_sanitize("address", "undefined")))

namespace {

using Lookup = void *(*)(void *, const char *);
constinit Lookup real = nullptr;

UNWATCHED Lookup systemsLookup() {
    if (!real) real = reinterpret_cast<Lookup>(dlvsym(RTLD_NEXT, "dlsym", "GLIBC_2.34"));
    return real;
}

} // namespace

void *platformSymbol(const std::string &name) {
    return lacksSymbol(name) ? nullptr : systemsLookup()(RTLD_DEFAULT, name.c_str());
}

namespace {
// Apart from what follows, which may clean nothing up before it goes on.
void *lookForDevice(const char *name) { return platformSymbol(name); }
} // namespace

} // namespace sim

// A library for the device asks with the device's number for "anywhere", which is none of this machine's. All
// else goes on as if nothing stood between: what "next" means depends on who calls.
extern "C" UNWATCHED __attribute__((visibility("default"))) void *symbol(void *handle,
                                                                         const char *name) __asm__("dlsym");
void *symbol(void *handle, const char *name) {
    if (handle == reinterpret_cast<void *>(-2)) return sim::lookForDevice(name);
    [[clang::musttail]] return sim::systemsLookup()(handle, name);
}

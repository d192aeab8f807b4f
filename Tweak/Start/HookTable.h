// Every method that the extension replaces or adds, in the order of installation.
#pragma once

#include <objc/runtime.h>

#include <span>

namespace pendix {

struct HookRow {
    enum class Kind { hooked, added };

    const char *className;
    const char *selector;
    Kind kind;
    const char *types; // the method's type encoding; of a hooked method the system's own, empty
    IMP replacement;
    IMP *original; // where the previous implementation is kept; null for an added method
};

std::span<const HookRow> hookTable();

// Installs the table, row by row. Rows of a class or of a hooked method that this system lacks are skipped;
// in a process that is not the home screen nothing is installed.
void installHooks();

} // namespace pendix

// A library that breaks, on purpose, what the extension beside it keeps: the act that the settings name under
// "sabotage" is done a given time after the launch ("sabotage_at", seconds).
#pragma once

#include "Runtime/Process/LibraryVariables.hpp"

#include <SpringBoard/SpringBoard.h>
#include <StatusBar/LSStatusBarItem.h>
#include <UIKit/UIKit.h>

#include <span>

namespace saboteur {

struct Act {
    const char *name;
    void (*run)();
};

std::span<const Act> acts();      // on what stands and runs
std::span<const Act> hookActs();  // on the ways between the extension and the system's methods
std::span<const Act> sightActs(); // on what somebody sees, and on what a touch leads to

// A variable of the extension; nullptr when it has none of that name.
template <typename T>
T &variable(const char *symbol) {
    return *static_cast<T *>(sim::libraryVariable(symbol));
}
inline UIWindow *overlay() { return variable<UIWindow *>("_ZN6pendix6windowE"); }
inline SpringBoard *springBoard() { return variable<SpringBoard *>("_ZN6pendix6SpringE"); }

} // namespace saboteur

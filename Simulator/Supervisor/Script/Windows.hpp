// The kinds of windows that calls take.
#pragma once

#include "Runtime/Values/Value.hpp"

#include <lua.hpp>
#include <string>

namespace sim {

// Throws std::runtime_error for a name that is none of them.
void checkWindow(const std::string &window);

// {"window": name} of an argument that may be left out, checked; else nothing.
Object windowArgument(lua_State *lua, int index);

} // namespace sim

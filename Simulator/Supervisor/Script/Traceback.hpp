// For calling functions of scripts.
#pragma once

#include <lua.hpp>

namespace sim {

// A message handler: adds the calls that led to an error to its text, and what was meant by the name of a
// function that is none.
int addTraceback(lua_State *lua);

} // namespace sim

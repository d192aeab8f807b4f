// Accessible elements as scripts see them: tables that remember what element they are of.
#pragma once

#include "Phone.hpp"

#include <lua.hpp>

namespace sim {

// Pushes the elements of an answer, {"elements": [element], "matches", "views"}, as a list.
void pushElements(lua_State *lua, const Phone &phone, const Value &answer);

// The number under which the process knows the element. Throws std::runtime_error when there is none, or one
// of another phone or from before the home screen booted again.
int64_t elementNumber(lua_State *lua, int index, const Phone &phone);

} // namespace sim

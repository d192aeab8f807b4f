// Values of the script's language to and from the supervisor's.
#pragma once

#include "Runtime/Values/Value.hpp"

#include <lua.hpp>
#include <string>

namespace sim {

// Tables with the keys 1 … n become lists, tables with strings as keys (and empty ones) objects. Throws
// std::runtime_error for what has no such form (functions, mixed tables).
Value toValue(lua_State *lua, int index);

// For comparing and showing: the same, but everything has a form. Keys that are no strings are put in
// brackets, functions become words.
Value toComparable(lua_State *lua, int index);

// As a script would write it, without addresses.
std::string describe(lua_State *lua, int index);

// Pushes the value: objects and lists become tables, bytes and dates strings and numbers.
void push(lua_State *lua, const Value &value);

// Pushes a list of the table's keys: numbers first, then strings, then booleans, each in ascending order.
// Throws std::runtime_error for a key of another kind, which has no order.
void pushSortedKeys(lua_State *lua, int index);

} // namespace sim

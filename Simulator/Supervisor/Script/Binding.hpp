// How functions of the supervisor are handed to scripts.
#pragma once

#include "Script.hpp"

#include <span>
#include <string>

namespace sim {

// A function that scripts call: takes its arguments from the stack and returns the number of its results.
// What it throws becomes an error of the script, with the script's file and line in front.
using Function = int (*)(lua_State *, Script &);

// Runs `function` as described.
int guarded(lua_State *lua, Function function);

template <Function function>
int bound(lua_State *lua) {
    return guarded(lua, function);
}

// "file:line" of the script's code that runs now, and of the code that called it: "lib.lua:3, called from
// a.lua:8".
std::string callPlace(lua_State *lua);

// A finite number; throws std::runtime_error naming what it is for.
double finiteNumber(lua_State *lua, int index, const char *what);
// The same, not negative.
double duration(lua_State *lua, int index);
int64_t wholeNumber(lua_State *lua, int index, const char *what);
std::string text(lua_State *lua, int index, const char *what);

} // namespace sim

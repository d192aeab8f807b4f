// The global functions of scripts, and what the language's own library may do here.
#pragma once

#include "Binding.hpp"

namespace sim {

// Opens what of the language's library gives the same results on every run: no `os`, `io` or `debug`; `pairs`
// and `next` in the order of keys; `tostring`, `print` and `string.format` without addresses; `math.random`
// seeded; `dofile` relative to the script's folder, `require` along the search path of loadModule.
void openLibrary(lua_State *lua, const ScriptOptions &options);

// `expect`, `expect_eq`, `expect_near`.
void openExpectations(lua_State *lua);

// `boot`, `each_profile` and the functions that are still to come.
void openDevices(lua_State *lua);

// Loads the text of a script file without running it. Throws std::runtime_error with file and line.
void loadScript(lua_State *lua, const std::filesystem::path &file);

// The file of module `name`: NAME.lua beside the script, in a folder `Lua` there or in one of the folders
// above, or among what the build made for scripts. Throws std::runtime_error naming the places.
std::filesystem::path moduleFile(const Script &script, const std::string &name);

// Adds a global function.
void setGlobal(lua_State *lua, const char *name, lua_CFunction function);

} // namespace sim

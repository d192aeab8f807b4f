// The global functions of scripts, and what the language's own library may do here.
#pragma once

#include "Binding.hpp"
#include "Supervisor/Reference/About.hpp"

namespace sim {

// Opens what of the language's library gives the same results on every run (no `os`, `io` or `debug`,
// `math.random` seeded) and the functions of globalFamilies().
void openLibrary(lua_State *lua, const ScriptOptions &options);

// A global function of scripts.
struct Global {
    const char *name;
    lua_CFunction function;
    std::vector<Described> parameters; // as of a Method
    About about;
};
std::span<const Global> languageGlobals(); // what differs from the language's own
std::span<const Global> expectationGlobals();
std::span<const Global> pictureGlobals();
std::span<const Global> testGlobals();
std::span<const Global> deviceGlobals();
// All of them by what they are for.
struct GlobalFamily {
    const char *name; // "expecting"
    About title;
    std::span<const Global> globals;
};
std::vector<GlobalFamily> globalFamilies();

// Loads the text of a script file without running it. Throws std::runtime_error with file and line.
void loadScript(lua_State *lua, const std::filesystem::path &file);

// The file of module `name`: NAME.lua beside the script, in a folder `Lua` there or in one of the folders
// above, or among what the build made for scripts. Throws std::runtime_error naming the places.
std::filesystem::path moduleFile(const Script &script, const std::string &name);

} // namespace sim

#include "Library.hpp"

#include "Conversion.hpp"
#include "Supervisor/Boot/Package.hpp"

#include <cstdio>
#include <stdexcept>
#include <vector>

namespace sim {

namespace {

// A value as text, as the language's own function would give it but for addresses.
void pushText(lua_State *lua, int index) {
    int kind = lua_type(lua, index);
    bool plain = kind == LUA_TNIL || kind == LUA_TBOOLEAN || kind == LUA_TNUMBER || kind == LUA_TSTRING;
    if (plain || luaL_getmetafield(lua, index, "__tostring") != LUA_TNIL) {
        if (!plain) lua_pop(lua, 1);
        luaL_tolstring(lua, index, nullptr);
    } else if (kind == LUA_TTABLE) {
        std::string text = describe(lua, index);
        lua_pushlstring(lua, text.data(), text.size());
    } else {
        lua_pushstring(lua, luaL_typename(lua, index));
    }
}

int toString(lua_State *lua, Script &) {
    luaL_checkany(lua, 1);
    pushText(lua, 1);
    return 1;
}

int print(lua_State *lua, Script &) {
    int count = lua_gettop(lua);
    for (int i = 1; i <= count; ++i) {
        pushText(lua, i);
        size_t length = 0;
        const char *text = lua_tolstring(lua, -1, &length);
        if (i > 1) fputc('\t', stdout);
        fwrite(text, 1, length, stdout);
        lua_pop(lua, 1);
    }
    fputc('\n', stdout);
    fflush(stdout);
    return 0;
}

// The language's own function is in the first upvalue.
int format(lua_State *lua, Script &) {
    std::string pattern = text(lua, 1, "the format");
    for (size_t at = pattern.find('%'); at != std::string::npos; at = pattern.find('%', at + 1)) {
        at = pattern.find_first_not_of("-+ #0123456789.", at + 1);
        if (at == std::string::npos) break;
        if (pattern[at] == 'p') throw std::runtime_error("%p would show an address");
    }
    int count = lua_gettop(lua);
    for (int i = 2; i <= count; ++i) {
        if (lua_type(lua, i) == LUA_TNIL || lua_type(lua, i) == LUA_TBOOLEAN ||
            lua_type(lua, i) == LUA_TNUMBER || lua_type(lua, i) == LUA_TSTRING)
            continue;
        pushText(lua, i);
        lua_replace(lua, i);
    }
    lua_pushvalue(lua, lua_upvalueindex(1));
    lua_insert(lua, 1);
    lua_call(lua, count, 1);
    return 1;
}

// next(table[, key]): the key after `key` in ascending order.
int next(lua_State *lua, Script &) {
    luaL_checktype(lua, 1, LUA_TTABLE);
    lua_settop(lua, 2);
    pushSortedKeys(lua, 1);
    bool found = lua_isnil(lua, 2);
    for (lua_Integer i = 1; lua_rawgeti(lua, 3, i) != LUA_TNIL; ++i) {
        if (found) {
            lua_pushvalue(lua, -1);
            lua_rawget(lua, 1);
            return 2;
        }
        found = lua_rawequal(lua, 2, -1);
        lua_pop(lua, 1);
    }
    if (!found) throw std::runtime_error("next: the table has no key " + describe(lua, 2));
    lua_pushnil(lua);
    return 1;
}

// Upvalues: the list of keys, the place of the last one visited.
int nextPair(lua_State *lua, Script &) {
    lua_settop(lua, 1);
    auto place = lua_tointeger(lua, lua_upvalueindex(2));
    while (lua_rawgeti(lua, lua_upvalueindex(1), ++place) != LUA_TNIL) {
        lua_pushvalue(lua, -1);
        if (lua_rawget(lua, 1) != LUA_TNIL) {
            lua_pushinteger(lua, place);
            lua_replace(lua, lua_upvalueindex(2));
            return 2;
        }
        lua_pop(lua, 2); // removed while it was walked through
    }
    return 1;
}

int pairs(lua_State *lua, Script &) {
    luaL_checkany(lua, 1);
    if (luaL_getmetafield(lua, 1, "__pairs") != LUA_TNIL) {
        lua_pushvalue(lua, 1);
        lua_call(lua, 1, 3);
        return 3;
    }
    luaL_checktype(lua, 1, LUA_TTABLE);
    pushSortedKeys(lua, 1);
    lua_pushinteger(lua, 0);
    lua_pushcclosure(lua, bound<nextPair>, 2);
    lua_pushvalue(lua, 1);
    lua_pushnil(lua);
    return 3;
}

// The seed is in the first upvalue, the language's own function in the second.
int randomSeed(lua_State *lua, Script &) {
    if (lua_gettop(lua) == 0) lua_pushvalue(lua, lua_upvalueindex(1));
    int count = lua_gettop(lua);
    lua_pushvalue(lua, lua_upvalueindex(2));
    lua_insert(lua, 1);
    lua_call(lua, count, 0);
    return 0;
}

// Text only: compiled code is not checked by the interpreter. The language's own function is in the first
// upvalue.
int load(lua_State *lua, Script &) {
    if (lua_gettop(lua) < 3) lua_settop(lua, 3);
    lua_pushstring(lua, "t");
    lua_replace(lua, 3);
    int count = lua_gettop(lua);
    lua_pushvalue(lua, lua_upvalueindex(1));
    lua_insert(lua, 1);
    lua_call(lua, count, LUA_MULTRET);
    return lua_gettop(lua);
}

// How much memory is used differs from run to run, so this only collects.
int collectGarbage(lua_State *lua, Script &) {
    std::string what = lua_isnoneornil(lua, 1) ? "collect" : text(lua, 1, "the option");
    if (what != "collect") throw std::runtime_error("collectgarbage only collects");
    lua_pushinteger(lua, lua_gc(lua, LUA_GCCOLLECT));
    return 1;
}

int doFile(lua_State *lua, Script &script) {
    std::filesystem::path name = text(lua, 1, "the file's name");
    lua_settop(lua, 0);
    loadScript(lua, (script.options().file.parent_path() / name).lexically_normal());
    lua_call(lua, 0, LUA_MULTRET);
    return lua_gettop(lua);
}

// Once a module: what it returned the first time is kept.
int require(lua_State *lua, Script &script) {
    std::string name = text(lua, 1, "the module's name");
    lua_settop(lua, 1);
    luaL_getsubtable(lua, LUA_REGISTRYINDEX, "modules of the script");
    if (lua_getfield(lua, 2, name.c_str()) != LUA_TNIL) return 1;
    loadScript(lua, moduleFile(script, name));
    lua_call(lua, 0, 1);
    if (lua_isnil(lua, -1)) throw std::runtime_error("the module '" + name + "' returns nothing");
    lua_pushvalue(lua, -1);
    lua_setfield(lua, 2, name.c_str());
    return 1;
}

// Puts a function in the place of field `name` of the table at the top, which becomes its last upvalue after
// the `upvalues` values above the table.
void wrap(lua_State *lua, int table, const char *name, lua_CFunction function, int upvalues) {
    lua_getfield(lua, table, name);
    lua_pushcclosure(lua, function, upvalues + 1);
    lua_setfield(lua, table, name);
}

void openStandard(lua_State *lua) {
    const luaL_Reg libraries[] = {{LUA_GNAME, luaopen_base},       {LUA_COLIBNAME, luaopen_coroutine},
                                  {LUA_TABLIBNAME, luaopen_table}, {LUA_STRLIBNAME, luaopen_string},
                                  {LUA_MATHLIBNAME, luaopen_math}, {LUA_UTF8LIBNAME, luaopen_utf8}};
    for (const auto &library : libraries) {
        luaL_requiref(lua, library.name, library.func, 1);
        lua_pop(lua, 1);
    }
    for (const char *name : {"loadfile", "warn"}) {
        lua_pushnil(lua);
        lua_setglobal(lua, name);
    }
}

} // namespace

void loadScript(lua_State *lua, const std::filesystem::path &file) {
    std::string content = readFile(file);
    if (content.starts_with(LUA_SIGNATURE))
        throw std::runtime_error(file.string() + ": compiled scripts are not taken");
    if (luaL_loadbufferx(lua, content.data(), content.size(), ("@" + file.string()).c_str(), "t") != LUA_OK) {
        std::string problem = lua_tostring(lua, -1);
        lua_pop(lua, 1);
        throw std::runtime_error(problem);
    }
}

std::filesystem::path moduleFile(const Script &script, const std::string &name) {
    namespace fs = std::filesystem;
    const fs::path file = name + ".lua",
                   folder = fs::absolute(script.options().file).parent_path().lexically_normal();
    std::vector<fs::path> places{folder};
    for (fs::path at = folder; places.push_back(at / "Lua"), at != at.root_path(); at = at.parent_path())
        ;
    places.push_back(script.setup().installation.scripts);
    for (const fs::path &place : places)
        if (fs::is_regular_file(place / file)) return place / file;
    throw std::runtime_error("there is no module '" + name + "': no " + file.string() +
                             " beside the script, in a " + "folder Lua there or above it, or in " +
                             places.back().string());
}

std::span<const Global> languageGlobals() {
    static const Global globals[] = {
        {"print", bound<print>, {{"…", "values"}}, "Writes to standard output; tables by what they hold."},
        {"tostring", bound<toString>, {{"value", "of any kind"}}, "Its text, without addresses."},
        {"pairs",
         bound<pairs>,
         {{"table", "to go through"}},
         "Visits keys in ascending order: numbers, strings, booleans. A key of another kind is an error."},
        {"next",
         bound<next>,
         {{"table", "to go through"}, {"[key]", "the one before"}},
         "In the same order."},
        {"dofile",
         bound<doFile>,
         {{"file", "relative to the script's folder"}},
         "Runs another script and gives its results."},
        {"require",
         bound<require>,
         {{"module", "a name without \".lua\""}},
         "What the module returned when it was loaded first. It is looked for beside the script, in a folder "
         "`Lua` "
         "there or in one above, and among what the build made for scripts."},
        {"collectgarbage",
         bound<collectGarbage>,
         {{"[\"collect\"]", "the only option"}},
         "Only collects: a phone that nobody holds ends then, or at the next boot."}};
    return globals;
}

std::vector<GlobalFamily> globalFamilies() {
    return {{"starting", "Starting devices", deviceGlobals()},
            {"expecting", "Expecting", expectationGlobals()},
            {"pictures", "Pictures that were agreed on", pictureGlobals()},
            {"tests", "Tests", testGlobals()},
            {"lua", "What differs from the language's own library", languageGlobals()}};
}

void openLibrary(lua_State *lua, const ScriptOptions &options) {
    openStandard(lua);
    for (const auto &family : globalFamilies()) {
        for (const auto &global : family.globals) {
            lua_pushcfunction(lua, global.function);
            lua_setglobal(lua, global.name);
        }
    }

    lua_pushglobaltable(lua);
    wrap(lua, lua_gettop(lua), "load", bound<load>, 0);
    lua_getglobal(lua, LUA_STRLIBNAME);
    wrap(lua, lua_gettop(lua), "format", bound<format>, 0);
    lua_getglobal(lua, LUA_MATHLIBNAME);
    int math = lua_gettop(lua);
    lua_pushinteger(lua, options.seed);
    wrap(lua, math, "randomseed", bound<randomSeed>, 1);
    lua_getfield(lua, math, "randomseed");
    lua_call(lua, 0, 0);
    lua_settop(lua, 0);

    push(lua, Value(Array(options.arguments.begin(), options.arguments.end())));
    lua_setglobal(lua, "args");
}

} // namespace sim

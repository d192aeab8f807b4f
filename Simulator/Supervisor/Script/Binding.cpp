#include "Binding.hpp"

#include "Conversion.hpp"
#include "Supervisor/Text/Readable.hpp"

#include <cmath>
#include <stdexcept>

namespace sim {

namespace {

[[noreturn]] void expected(lua_State *lua, int index, const char *what, const char *kind) {
    throw std::runtime_error(std::string(what) + " must be " + kind + ", not " + describe(lua, index));
}

} // namespace

Script &scriptOf(lua_State *lua) { return **static_cast<Script **>(lua_getextraspace(lua)); }

int guarded(lua_State *lua, Function function) {
    try {
        return function(lua, scriptOf(lua));
    } catch (const BootError &error) {
        scriptOf(lua).noteBootError(error.what());
        luaL_where(lua, 1);
        lua_pushstring(lua, error.what());
    } catch (const std::exception &error) {
        luaL_where(lua, 1);
        lua_pushstring(lua, error.what());
    }
    lua_concat(lua, 2);
    return lua_error(lua);
}

std::string callPlace(lua_State *lua) {
    std::string place;
    lua_Debug frame;
    for (int level = 1; lua_getstack(lua, level, &frame); ++level) {
        lua_getinfo(lua, "Sl", &frame);
        if (frame.currentline <= 0) continue;
        if (!place.empty()) place += ", called from ";
        place += std::string(frame.source + 1) + ":" + std::to_string(frame.currentline);
    }
    return place;
}

double finiteNumber(lua_State *lua, int index, const char *what) {
    if (lua_type(lua, index) != LUA_TNUMBER) expected(lua, index, what, "a number");
    double value = lua_tonumber(lua, index);
    if (!std::isfinite(value)) expected(lua, index, what, "a finite number");
    return value;
}

double duration(lua_State *lua, int index) {
    double seconds = finiteNumber(lua, index, "the number of seconds");
    if (seconds < 0) expected(lua, index, "the number of seconds", "zero or more");
    return seconds;
}

int64_t wholeNumber(lua_State *lua, int index, const char *what) {
    int isWhole = 0;
    lua_Integer value = lua_type(lua, index) == LUA_TNUMBER ? lua_tointegerx(lua, index, &isWhole) : 0;
    if (!isWhole) expected(lua, index, what, "a whole number");
    return value;
}

std::string text(lua_State *lua, int index, const char *what) {
    if (lua_type(lua, index) != LUA_TSTRING) expected(lua, index, what, "a string");
    size_t length = 0;
    const char *start = lua_tolstring(lua, index, &length);
    return {start, length};
}

} // namespace sim

#include "Phone.hpp"

#include "Conversion.hpp"
#include "Device/Supervisor/Text/Suggest.hpp"

#include <algorithm>
#include <stdexcept>

namespace sim {

namespace {

constexpr const char *kPhone = "phone";

Phone &self(lua_State *lua) {
    void *object = luaL_testudata(lua, 1, kPhone);
    if (!object) throw std::runtime_error("call methods of a phone as phone:method(…)");
    return **static_cast<Phone **>(object);
}

const Method &currentMethod(lua_State *lua) {
    return *static_cast<const Method *>(lua_touserdata(lua, lua_upvalueindex(1)));
}

int callMethod(lua_State *lua, Script &script) {
    const Method &method = currentMethod(lua);
    Phone &phone = self(lua);
    if (lua_gettop(lua) - 1 > method.arguments)
        throw std::runtime_error(std::string("phone:") + method.name + " takes " +
                                 (method.arguments ? "at most " + std::to_string(method.arguments) : "no") +
                                 " argument" + (method.arguments == 1 ? "" : "s"));
    return method.run(lua, phone, script);
}

const char *pendingName(lua_State *lua) {
    return static_cast<const char *>(lua_touserdata(lua, lua_upvalueindex(1)));
}

int refusePending(lua_State *lua, Script &) {
    throw std::runtime_error(std::string("phone:") + pendingName(lua) + " is not simulated yet");
}

std::vector<std::string> methodNames(lua_State *lua, int table) {
    std::vector<std::string> names;
    for (lua_pushnil(lua); lua_next(lua, table); lua_pop(lua, 1)) names.emplace_back(lua_tostring(lua, -2));
    std::ranges::sort(names);
    return names;
}

// The methods are in the first upvalue.
int lookUp(lua_State *lua, Script &) {
    std::string name = text(lua, 2, "the name of a method");
    lua_pushvalue(lua, lua_upvalueindex(1));
    int methods = lua_gettop(lua);
    if (lua_getfield(lua, methods, name.c_str()) == LUA_TNIL)
        throw std::runtime_error("a phone has no method '" + name + "'" +
                                 suggestion(name, methodNames(lua, methods)));
    return 1;
}

int refuseWriting(lua_State *lua, Script &) {
    throw std::runtime_error("a phone has no field " + describe(lua, 2) + " to be set");
}

int collect(lua_State *lua, Script &script) {
    script.close(&self(lua));
    return 0;
}

int phoneToString(lua_State *lua, Script &) {
    lua_pushstring(lua, ("phone (" + self(lua).device.description() + ")").c_str());
    return 1;
}

void pushMethods(lua_State *lua) {
    lua_newtable(lua);
    for (auto family : {timeMethods(), touchMethods(), lookingMethods(), homeScreenMethods(),
                        settingsMethods(), observingMethods()}) {
        for (const auto &method : family) {
            lua_pushlightuserdata(lua, const_cast<Method *>(&method));
            lua_pushcclosure(lua, bound<callMethod>, 1);
            lua_setfield(lua, -2, method.name);
        }
    }
    for (const char *name : pendingMethods()) {
        lua_pushlightuserdata(lua, const_cast<char *>(name));
        lua_pushcclosure(lua, bound<refusePending>, 1);
        lua_setfield(lua, -2, name);
    }
}

} // namespace

void pushPhone(lua_State *lua, Phone &phone) {
    *static_cast<Phone **>(lua_newuserdatauv(lua, sizeof(Phone *), 0)) = &phone;
    if (luaL_newmetatable(lua, kPhone)) {
        pushMethods(lua);
        lua_pushcclosure(lua, bound<lookUp>, 1);
        lua_setfield(lua, -2, "__index");
        const luaL_Reg events[] = {{"__newindex", bound<refuseWriting>},
                                   {"__gc", bound<collect>},
                                   {"__tostring", bound<phoneToString>},
                                   {nullptr, nullptr}};
        luaL_setfuncs(lua, events, 0);
    }
    lua_setmetatable(lua, -2);
}

int boot(lua_State *lua, Script &script) {
    static uint64_t serial = 0;
    if (lua_gettop(lua) > 1) throw BootError("boot: takes one table of options");
    Value table;
    std::string stock;
    try {
        table = toValue(lua, 1);
        stock = readFile(script.setup().installation.platform / "applications.json");
    } catch (const std::runtime_error &error) {
        throw BootError(std::string("boot: ") + error.what());
    }
    // Phones that the script has let go of end here, in an order that does not depend on memory.
    lua_gc(lua, LUA_GCCOLLECT);
    pushPhone(lua,
              script.add(std::make_unique<Phone>(script.setup(), readBootOptions(table, stock), ++serial)));
    return 1;
}

} // namespace sim

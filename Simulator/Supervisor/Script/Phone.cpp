#include "Phone.hpp"

#include "Conversion.hpp"
#include "Supervisor/Boot/Extensions.hpp"
#include "Supervisor/Text/Suggest.hpp"
#include "TracedCall.hpp"

#include <algorithm>
#include <stdexcept>

namespace sim {

namespace {

constexpr const char *kPhone = "phone", *kPane = "pane";

// What the object is called, and so the name of its kind.
const char *word(const Phone &phone) { return phone.pane ? kPane : kPhone; }

Phone &self(lua_State *lua) {
    void *object = luaL_testudata(lua, 1, kPhone);
    if (!object) object = luaL_testudata(lua, 1, kPane);
    if (!object) throw std::runtime_error("call methods of a phone as phone:method(…)");
    return **static_cast<Phone **>(object);
}

const Method &currentMethod(lua_State *lua) {
    return *static_cast<const Method *>(lua_touserdata(lua, lua_upvalueindex(1)));
}

int callMethod(lua_State *lua, Script &script) {
    const Method &method = currentMethod(lua);
    Phone &phone = self(lua);
    size_t most = method.parameters.size();
    // Nothing was said by them: a call that passes on what it was given may end in nils.
    while (static_cast<size_t>(lua_gettop(lua)) - 1 > most && lua_isnil(lua, -1)) lua_pop(lua, 1);
    if (static_cast<size_t>(lua_gettop(lua)) - 1 > most)
        throw std::runtime_error(word(phone) + std::string(":") + method.name + " takes " +
                                 (most ? "at most " + std::to_string(most) : "no") + " argument" +
                                 (most == 1 ? "" : "s"));
    TracedCall traced(lua, script, phone, method.name);
    return method.run(lua, phone, script);
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
        throw std::runtime_error(std::string("a ") + word(self(lua)) + " has no method '" + name + "'" +
                                 suggestion(name, methodNames(lua, methods)));
    return 1;
}

int refuseWriting(lua_State *lua, Script &) {
    throw std::runtime_error(std::string("a ") + word(self(lua)) + " has no field " + describe(lua, 2) +
                             " to be set");
}

int collect(lua_State *lua, Script &script) {
    script.close(&self(lua));
    return 0;
}

int phoneToString(lua_State *lua, Script &) {
    lua_pushstring(lua, (word(self(lua)) + (" (" + self(lua).owner->description() + ")")).c_str());
    return 1;
}

void pushMethods(lua_State *lua, const Phone &phone) {
    lua_newtable(lua);
    for (const auto &family : methodFamilies()) {
        if (!(phone.pane ? family.ofPane : family.ofPhone)) continue;
        for (const auto &method : family.methods) {
            lua_pushlightuserdata(lua, const_cast<Method *>(&method));
            lua_pushcclosure(lua, bound<callMethod>, 1);
            lua_setfield(lua, -2, method.name);
        }
    }
}

// The table of options, and the list of the applications that a device comes with.
BootOptions readOptions(lua_State *lua, const Script &script, const char *function) {
    if (lua_gettop(lua) > 1) throw BootError(std::string(function) + ": takes one table of options");
    try {
        Value table = toValue(lua, 1);
        std::string stock = readFile(script.setup().installation.platform / "applications.json");
        BootOptions options = readBootOptions(table, stock);
        options.extensions = absolutePaths(options.extensions, script.options().file.parent_path());
        return options;
    } catch (const BootError &) {
        throw;
    } catch (const std::runtime_error &error) {
        throw BootError(std::string(function) + ": " + error.what());
    }
}

} // namespace

std::vector<MethodFamily> methodFamilies() {
    return {{"time", "Time", timeMethods(), true, true},
            {"touches", "Touches", touchMethods(), true, true},
            {"looking", "Looking", lookingMethods(), true, true},
            {"speaking", "Speaking", speakingMethods(), true, true},
            {"observing", "Observing", observingMethods(), true, true},
            {"file", "The settings file", settingsMethods(), true, true},
            {"home-screen", "The home screen", homeScreenMethods(), true, false},
            {"lock-screen", "The lock screen and the edges of the device", lockMethods(), true, false},
            {"opening", "The way to Settings", openingMethods(), true, false},
            {"pane", "The Settings application", paneMethods(), false, true}};
}

void pushPhone(lua_State *lua, Phone &phone) {
    *static_cast<Phone **>(lua_newuserdatauv(lua, sizeof(Phone *), 0)) = &phone;
    if (luaL_newmetatable(lua, word(phone))) {
        pushMethods(lua, phone);
        lua_pushcclosure(lua, bound<lookUp>, 1);
        lua_setfield(lua, -2, "__index");
        const luaL_Reg events[] = {{"__newindex", bound<refuseWriting>},
                                   {"__gc", bound<collect>},
                                   {"__tostring", bound<phoneToString>},
                                   {nullptr, nullptr}};
        luaL_setfuncs(lua, events, 0);
    }
    lua_setmetatable(lua, -2);
    traceOpening(lua, phone);
}

uint64_t nextSerial() {
    static uint64_t serial = 0;
    return ++serial;
}

int boot(lua_State *lua, Script &script) {
    BootOptions options = readOptions(lua, script, "boot");
    // Phones that the script has let go of end here, in an order that does not depend on memory.
    lua_gc(lua, LUA_GCCOLLECT);
    auto device = std::make_shared<SimulatedDevice>(script.setup(), std::move(options));
    pushPhone(lua, script.add(std::make_unique<Phone>(std::move(device), nextSerial())));
    return 1;
}

int bootSettings(lua_State *lua, Script &script) {
    BootOptions options = readOptions(lua, script, "settings_app");
    lua_gc(lua, LUA_GCCOLLECT);
    auto device = std::make_shared<SimulatedDevice>(script.setup(), std::move(options), false);
    auto pane = std::make_unique<SettingsProcess>(*device);
    pushPhone(lua, script.add(std::make_unique<Phone>(std::move(device), std::move(pane), nextSerial())));
    return 1;
}

} // namespace sim

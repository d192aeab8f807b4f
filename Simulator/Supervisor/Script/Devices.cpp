#include "Conversion.hpp"
#include "Library.hpp"
#include "Phone.hpp"
#include "Supervisor/Text/Suggest.hpp"

#include <algorithm>
#include <stdexcept>

namespace sim {

namespace {

// Whether a wanted name, or a list of them, holds `name`; nothing wanted holds all.
bool holds(const Value &wanted, const std::string &name) {
    if (wanted.isNull()) return true;
    if (wanted.isString()) return wanted.string() == name;
    return std::ranges::count(wanted.array(), Value(name)) > 0;
}

// A filter is a function of device and version, or a table {device =, ios =} of names or lists of names.
bool chosen(lua_State *lua, const Profile &profile, const char *version) {
    if (lua_isnoneornil(lua, 2)) return true;
    if (lua_isfunction(lua, 2)) {
        lua_pushvalue(lua, 2);
        lua_pushstring(lua, profile.name);
        lua_pushstring(lua, version);
        lua_call(lua, 2, 1);
        bool result = lua_toboolean(lua, -1);
        lua_pop(lua, 1);
        return result;
    }
    Value filter = toValue(lua, 2);
    return holds(filter["device"], profile.name) && holds(filter["ios"], version);
}

void checkFilter(lua_State *lua) {
    if (lua_isnoneornil(lua, 2) || lua_isfunction(lua, 2)) return;
    static const std::vector<std::string> names = {"device", "ios"};
    Value filter = toValue(lua, 2);
    if (!filter.isObject())
        throw std::runtime_error(
            "a filter is a function of device and version, or a table {device =, ios =}");
    for (const auto &[name, value] : filter.object()) {
        if (!std::ranges::count(names, name))
            throw std::runtime_error("a filter has no field '" + name + "'" + suggestion(name, names));
        if (!value.isString() && !value.isArray())
            throw std::runtime_error("'" + name + "' must be a name or a list of names");
    }
}

int eachProfile(lua_State *lua, Script &) {
    luaL_checktype(lua, 1, LUA_TFUNCTION);
    checkFilter(lua);
    int runs = 0;
    for (const auto &profile : profiles()) {
        for (const char *version : profile.versions) {
            if (!chosen(lua, profile, version)) continue;
            lua_pushvalue(lua, 1);
            lua_pushstring(lua, profile.name);
            lua_pushstring(lua, version);
            lua_call(lua, 2, 0);
            ++runs;
        }
    }
    if (runs == 0) throw std::runtime_error("the filter leaves no device");
    return 0;
}

} // namespace

std::span<const Global> deviceGlobals() {
    static const Described options = {"options", "a table; `help boot` lists what it may hold"};
    static const Global globals[] = {
        {"boot",
         bound<boot>,
         {options},
         "Starts a device and gives its phone. The launch is over, the badges are drawn, and the clock "
         "stands at the "
         "time given. All options may be left out; an unknown one is an error."},
        {"settings_app",
         bound<bootSettings>,
         {options},
         "Starts the Settings application of a device without a home screen, at the extension's page, and "
         "gives its "
         "pane. Takes the options of `boot`."},
        {"each_profile",
         bound<eachProfile>,
         {{"run", "a function of device and version"},
          {"[filter]", "a function of both, or a table {device =, ios =} of names or lists of names"}},
         "Runs a function for every device with every version that it ran; `help devices` lists them."}};
    return globals;
}

} // namespace sim

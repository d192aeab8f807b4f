#include "Conversion.hpp"
#include "Phone.hpp"
#include "Supervisor/Machine/SettingsRemarks.hpp"

#include <stdexcept>

namespace sim {

namespace {

// phone:set(key, value), where no value removes the key; phone:set{key = value, …}.
int set(lua_State *lua, Phone &phone, Script &script) {
    Object changes;
    if (lua_istable(lua, 2)) {
        if (lua_gettop(lua) > 2) throw std::runtime_error("phone:set takes a key and a value, or one table");
        Value table = toValue(lua, 2);
        if (!table.isObject()) throw std::runtime_error("phone:set takes a table with names, not a list");
        changes = table.object();
    } else {
        changes.emplace(text(lua, 2, "the key"), toValue(lua, 3));
    }
    phone.device.settings().change(changes);
    remarkSettings(phone.device, script.setup().installation, changes);
    return 0;
}

int settings(lua_State *lua, Phone &phone, Script &) {
    std::string problem;
    auto content = phone.device.settings().read(&problem);
    if (!problem.empty()) phone.device.warn("the settings file cannot be read: " + problem);
    push(lua, content ? *content : Value());
    return 1;
}

// The file's bytes, whatever they are, as boot's option of that name.
int settingsText(lua_State *lua, Phone &phone, Script &) {
    phone.device.settings().writeText(text(lua, 2, "the file's bytes"));
    return 0;
}

int deleteSettings(lua_State *, Phone &phone, Script &) {
    phone.device.settings().remove();
    return 0;
}

} // namespace

std::span<const Method> settingsMethods() {
    static const Method methods[] = {
        {"set",
         set,
         {{"key", "a setting, or a table of settings and values"}, {"[value]", "nil removes the key"}},
         "Writes into the settings file from outside the process, as the pane does. A file that cannot be "
         "read is "
         "replaced. `help settings` lists the extension's."},
        {"settings",
         settings,
         {},
         "The settings file as a table; nil when it is absent, and nil with a `warning` event when it cannot "
         "be "
         "read."},
        {"settings_text",
         settingsText,
         {{"bytes", "all of the file's"}},
         "Replaces the settings file by these bytes, whatever they are."},
        {"delete_settings", deleteSettings, {}, "Removes the settings file."}};
    return methods;
}

} // namespace sim

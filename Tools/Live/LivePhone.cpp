#include "LivePhone.hpp"

#include "Supervisor/Script/Conversion.hpp"
#include "Supervisor/Script/ViewTable.hpp"

#include <algorithm>

namespace sim {

namespace {

constexpr const char *kChunk = "=page";
constexpr std::string_view kPlace = "page:1: "; // what the interpreter puts before its errors

int bootPhone(lua_State *lua) {
    push(lua, *static_cast<const Value *>(lua_touserdata(lua, 1)));
    lua_remove(lua, 1);
    int results = bound<boot>(lua);
    lua_setglobal(lua, "phone");
    return results - 1;
}

std::string takeError(lua_State *lua) {
    std::string text = lua_tostring(lua, -1);
    lua_pop(lua, 1);
    return text.starts_with(kPlace) ? text.substr(kPlace.size()) : text;
}

} // namespace

LivePhone::LivePhone(const DeviceSetup &setup, const Value &options) : script_(setup, {}) {
    lua_State *lua = script_.interpreter();
    lua_pushcfunction(lua, bootPhone);
    lua_pushlightuserdata(lua, const_cast<Value *>(&options));
    if (lua_pcall(lua, 1, 0, 0) != LUA_OK) throw BootError(takeError(lua));
    phone_ = script_.lastPhone();
}

SettingsProcess *LivePhone::settings() const {
    const Phone *last = script_.lastPhone();
    return last && last->pane && last->pane->running() ? last->pane.get() : nullptr;
}

const SettingsProcess *LivePhone::lastSettings() const {
    const Phone *last = script_.lastPhone();
    return last ? last->pane.get() : nullptr;
}

void LivePhone::run(const std::string &statements) {
    lua_State *lua = script_.interpreter();
    int status = luaL_loadbufferx(lua, statements.data(), statements.size(), kChunk, "t");
    if (status == LUA_OK) status = lua_pcall(lua, 0, 0, 0);
    if (status != LUA_OK) throw CallError(takeError(lua));
}

// Leaves its value on the stack.
void LivePhone::evaluate(const std::string &expression) {
    lua_State *lua = script_.interpreter();
    std::string chunk = "return " + expression;
    int status = luaL_loadbufferx(lua, chunk.data(), chunk.size(), kChunk, "t");
    if (status == LUA_OK) status = lua_pcall(lua, 0, 1, 0);
    if (status != LUA_OK) throw CallError(takeError(lua));
}

int64_t LivePhone::number(const std::string &expression) {
    evaluate(expression);
    lua_State *lua = script_.interpreter();
    int64_t result = lua_tointeger(lua, -1);
    lua_pop(lua, 1);
    return result;
}

std::optional<LivePhone::Sight> LivePhone::look(const std::string &expression) {
    lua_State *lua = script_.interpreter();
    int top = lua_gettop(lua);
    std::optional<Sight> sight;
    try {
        evaluate(expression);
        const Phone *last = script_.lastPhone();
        if (isView(lua, -1)) {
            const Phone &owner = expression.starts_with("pane") ? *last : *phone_;
            sight = Sight{.number = viewNumber(lua, -1, owner)};
            lua_getfield(lua, -1, "screen");
            auto field = [&](const char *name) {
                lua_getfield(lua, -1, name);
                double value = lua_tonumber(lua, -1);
                lua_pop(lua, 1);
                return value;
            };
            sight->x = field("x") + field("w") / 2;
            sight->y = field("y") + field("h") / 2;
        }
    } catch (const std::runtime_error &) {
        sight.reset();
    }
    lua_settop(lua, top);
    return sight;
}

BootOptions checkBootOptions(const DeviceSetup &setup, const Value &table) {
    return readBootOptions(table, readFile(setup.installation.platform / "applications.json"));
}

bool isAction(const std::string &name) {
    static const char *const names[] = {"activator", "badge",    "banner",       "delete_settings",
                                        "display",   "finger",   "home",         "home_twice",
                                        "lock",      "respring", "restyle",      "rotate",
                                        "run",       "set",      "reachability", "unlock"};
    return std::ranges::count(names, name) > 0;
}

} // namespace sim

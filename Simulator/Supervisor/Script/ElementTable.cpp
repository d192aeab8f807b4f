#include "ElementTable.hpp"

#include "Conversion.hpp"
#include "Record.hpp"
#include "ViewTable.hpp"

#include <stdexcept>

namespace sim {

namespace {

constexpr const char *kIdentities = "element identities";
enum Place : lua_Integer { number = 1, phoneSerial, phoneGeneration };

// Pushes the table from elements' tables to what they stand for; it keeps no element.
void pushIdentities(lua_State *lua) {
    if (luaL_getsubtable(lua, LUA_REGISTRYINDEX, kIdentities)) return;
    lua_createtable(lua, 0, 1);
    lua_pushstring(lua, "k");
    lua_setfield(lua, -2, "__mode");
    lua_setmetatable(lua, -2);
}

// Ties the table on top of the stack to the element.
void setIdentity(lua_State *lua, int64_t element, const Phone &phone) {
    pushIdentities(lua);
    lua_pushvalue(lua, -2);
    push(lua,
         Array{element, static_cast<int64_t>(phone.serial), static_cast<int64_t>(phone.device.generation())});
    lua_rawset(lua, -3);
    lua_pop(lua, 1);
}

int64_t field(lua_State *lua, Place place) {
    lua_rawgeti(lua, -1, place);
    int64_t value = lua_tointeger(lua, -1);
    lua_pop(lua, 1);
    return value;
}

} // namespace

void pushElements(lua_State *lua, const Phone &phone, const Value &answer) {
    const Array &elements = answer["elements"].array();
    pushViews(lua, phone, answer);
    int views = lua_gettop(lua);
    lua_createtable(lua, static_cast<int>(elements.size()), 0);
    lua_Integer place = 0, nextView = 0;
    for (const auto &each : elements) {
        Object fields = each.object();
        Value screen = fields["screen"];
        for (const char *own : {"number", "held", "screen"}) fields.erase(own);
        push(lua, Value(fields));
        pushRecord(lua, Record::rectangle, screen);
        lua_setfield(lua, -2, "screen");
        if (each["held"].boolean()) {
            lua_rawgeti(lua, views, ++nextView);
            lua_setfield(lua, -2, "view");
        }
        makeRecord(lua, Record::element);
        setIdentity(lua, each["number"].integer(), phone);
        lua_rawseti(lua, -2, ++place);
    }
    lua_remove(lua, views);
}

int64_t elementNumber(lua_State *lua, int index, const Phone &phone) {
    int element = lua_absindex(lua, index);
    if (lua_gettop(lua) < element) lua_settop(lua, element); // nothing was given
    pushIdentities(lua);
    lua_pushvalue(lua, element);
    if (lua_rawget(lua, -2) != LUA_TTABLE)
        throw std::runtime_error("expected an element that 'spoken' or 'focus' gave, not " +
                                 describe(lua, element));
    int64_t found = field(lua, Place::number);
    if (field(lua, Place::phoneSerial) != static_cast<int64_t>(phone.serial))
        throw std::runtime_error("the element is of another phone or pane");
    if (field(lua, Place::phoneGeneration) != static_cast<int64_t>(phone.device.generation()))
        throw std::runtime_error("the element is from before the home screen booted again");
    lua_pop(lua, 2);
    return found;
}

} // namespace sim

#include "Record.hpp"

#include "Binding.hpp"
#include "Conversion.hpp"
#include "Supervisor/Text/Suggest.hpp"

#include <algorithm>
#include <stdexcept>

namespace sim {

namespace {

Record kindOf(lua_State *lua) { return static_cast<Record>(lua_tointeger(lua, lua_upvalueindex(1))); }

int readField(lua_State *lua, Script &) {
    // Positions in a list (ipairs asks for them) are plainly absent.
    if (lua_type(lua, 2) == LUA_TSTRING) checkField(kindOf(lua), text(lua, 2, "a field"));
    lua_pushnil(lua);
    return 1;
}

int writeField(lua_State *lua, Script &) {
    checkField(kindOf(lua), text(lua, 2, "a field"));
    lua_rawset(lua, 1);
    return 0;
}

} // namespace

void checkField(Record record, const std::string &field) {
    const RecordKind &kind = recordKind(record);
    if (std::ranges::any_of(kind.fields, [&](const auto &known) { return field == known.name; })) return;
    const char *article = std::string("aeiou").find(kind.name[0]) != std::string::npos ? "an " : "a ";
    throw std::runtime_error(article + std::string(kind.name) + " has no field '" + field + "'" +
                             suggestion(field, namesOf(kind.fields)));
}

void makeRecord(lua_State *lua, Record kind) {
    std::string key = std::string("record ") + recordKind(kind).name;
    if (luaL_newmetatable(lua, key.c_str())) {
        const luaL_Reg events[] = {
            {"__index", bound<readField>}, {"__newindex", bound<writeField>}, {nullptr, nullptr}};
        lua_pushinteger(lua, static_cast<lua_Integer>(kind));
        luaL_setfuncs(lua, events, 1);
        lua_pushnil(lua);
        lua_setfield(lua, -2, "__name");
    }
    lua_setmetatable(lua, -2);
}

void pushRecord(lua_State *lua, Record kind, const Value &members) {
    for (const auto &[name, value] : members.object()) checkField(kind, name);
    push(lua, members);
    makeRecord(lua, kind);
}

void pushRecords(lua_State *lua, Record kind, const Array &list) {
    lua_createtable(lua, static_cast<int>(list.size()), 0);
    lua_Integer place = 0;
    for (const auto &members : list) {
        pushRecord(lua, kind, members);
        lua_rawseti(lua, -2, ++place);
    }
}

} // namespace sim

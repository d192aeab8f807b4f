#include "Conversion.hpp"

#include "Supervisor/Text/Readable.hpp"
#include "ViewTable.hpp"

#include <algorithm>
#include <stdexcept>
#include <vector>

namespace sim {

namespace {

constexpr int kDeepest = 100;

// How strict a conversion is.
enum class Purpose { transport, comparison };

Value convert(lua_State *lua, int index, Purpose purpose, int depth);

std::string keyName(lua_State *lua, int index, Purpose purpose) {
    if (lua_type(lua, index) == LUA_TSTRING) {
        size_t length = 0;
        const char *start = lua_tolstring(lua, index, &length);
        return {start, length};
    }
    if (purpose == Purpose::transport)
        throw std::runtime_error("a table must be a list or have strings as keys, not " +
                                 describe(lua, index));
    return "[" + describe(lua, index) + "]";
}

bool isList(lua_State *lua, int table) {
    auto length = static_cast<lua_Integer>(lua_rawlen(lua, table));
    lua_Integer keys = 0;
    for (lua_pushnil(lua); lua_next(lua, table); lua_pop(lua, 1)) {
        ++keys;
        bool counts =
            lua_isinteger(lua, -2) && lua_tointeger(lua, -2) >= 1 && lua_tointeger(lua, -2) <= length;
        if (!counts) {
            lua_pop(lua, 2);
            return false;
        }
    }
    return keys == length && length > 0;
}

Value convertTable(lua_State *lua, int table, Purpose purpose, int depth) {
    if (depth > kDeepest) throw std::runtime_error("a table is too deep, or holds itself");
    luaL_checkstack(lua, 8, "a table is too deep");
    completeView(lua, table);
    if (isList(lua, table)) {
        Array items;
        for (lua_Unsigned i = 1; i <= lua_rawlen(lua, table); ++i) {
            lua_rawgeti(lua, table, static_cast<lua_Integer>(i));
            items.push_back(convert(lua, -1, purpose, depth + 1));
            lua_pop(lua, 1);
        }
        return items;
    }
    Object members;
    for (lua_pushnil(lua); lua_next(lua, table); lua_pop(lua, 1))
        members.insert_or_assign(keyName(lua, -2, purpose), convert(lua, -1, purpose, depth + 1));
    return members;
}

Value convert(lua_State *lua, int index, Purpose purpose, int depth) {
    switch (lua_type(lua, index)) {
    case LUA_TNIL:
    case LUA_TNONE:
        return {};
    case LUA_TBOOLEAN:
        return lua_toboolean(lua, index) != 0;
    case LUA_TNUMBER:
        if (lua_isinteger(lua, index)) return static_cast<int64_t>(lua_tointeger(lua, index));
        return lua_tonumber(lua, index);
    case LUA_TSTRING: {
        size_t length = 0;
        const char *start = lua_tolstring(lua, index, &length);
        return std::string(start, length);
    }
    case LUA_TTABLE:
        return convertTable(lua, lua_absindex(lua, index), purpose, depth);
    default:
        if (purpose == Purpose::transport)
            throw std::runtime_error(std::string("expected a plain value, not a ") +
                                     luaL_typename(lua, index));
        return std::string("<") + luaL_typename(lua, index) + ">";
    }
}

// The order of keys: by kind, then by value.
bool before(const Value &a, const Value &b) {
    auto rank = [](const Value &key) { return key.isNumber() ? 0 : key.isString() ? 1 : 2; };
    if (rank(a) != rank(b)) return rank(a) < rank(b);
    if (a.isNumber()) return a.number() < b.number();
    return a.isString() ? a.string() < b.string() : a.boolean() < b.boolean();
}

} // namespace

Value toValue(lua_State *lua, int index) { return convert(lua, index, Purpose::transport, 0); }
Value toComparable(lua_State *lua, int index) { return convert(lua, index, Purpose::comparison, 0); }
std::string describe(lua_State *lua, int index) { return readable(toComparable(lua, index)); }

void push(lua_State *lua, const Value &value) {
    luaL_checkstack(lua, 4, "a value is too deep");
    if (value.isNull()) {
        lua_pushnil(lua);
    } else if (value.isBool()) {
        lua_pushboolean(lua, value.boolean());
    } else if (value.isInteger()) {
        lua_pushinteger(lua, value.integer());
    } else if (value.isReal()) {
        lua_pushnumber(lua, value.number());
    } else if (value.isString() || value.isData()) {
        const auto &bytes = value.isString() ? value.string() : value.data().bytes;
        lua_pushlstring(lua, bytes.data(), bytes.size());
    } else if (value.isDate()) {
        lua_pushnumber(lua, value.date().seconds);
    } else if (value.isArray()) {
        lua_createtable(lua, static_cast<int>(value.array().size()), 0);
        lua_Integer place = 0;
        for (const auto &item : value.array()) {
            push(lua, item);
            lua_rawseti(lua, -2, ++place);
        }
    } else {
        lua_createtable(lua, 0, static_cast<int>(value.object().size()));
        for (const auto &[name, item] : value.object()) {
            lua_pushlstring(lua, name.data(), name.size());
            push(lua, item);
            lua_rawset(lua, -3);
        }
    }
}

void pushSortedKeys(lua_State *lua, int index) {
    int table = lua_absindex(lua, index);
    completeView(lua, table);
    std::vector<Value> keys;
    for (lua_pushnil(lua); lua_next(lua, table); lua_pop(lua, 1)) {
        int kind = lua_type(lua, -2);
        if (kind != LUA_TNUMBER && kind != LUA_TSTRING && kind != LUA_TBOOLEAN)
            throw std::runtime_error(std::string("a key of type ") + luaL_typename(lua, -2) +
                                     " has no order in which to visit it");
        keys.push_back(convert(lua, -2, Purpose::transport, 0));
    }
    std::ranges::sort(keys, before);
    push(lua, Value(Array(std::move(keys))));
}

} // namespace sim

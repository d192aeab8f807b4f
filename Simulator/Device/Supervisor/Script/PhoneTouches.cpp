#include "Conversion.hpp"
#include "ViewTable.hpp"

#include <stdexcept>

namespace sim {

namespace {

double coordinate(lua_State *lua, int table, lua_Integer place) {
    lua_geti(lua, table, place);
    double value = finiteNumber(lua, -1, "a coordinate");
    lua_pop(lua, 1);
    return value;
}

// The middle of the view's place on the screen as it was when it was looked up.
void readCentre(lua_State *lua, int view, TouchTarget &target) {
    auto field = [&](const char *name) {
        lua_getfield(lua, -1, name);
        double value = lua_tonumber(lua, -1);
        lua_pop(lua, 1);
        return value;
    };
    lua_getfield(lua, view, "screen");
    target.x = field("x") + field("w") / 2;
    target.y = field("y") + field("h") / 2;
    lua_pop(lua, 1);
}

TouchTarget target(lua_State *lua, Phone &phone) {
    TouchTarget result;
    if (isView(lua, 2)) {
        result.view = viewNumber(lua, 2, phone);
        readCentre(lua, 2, result);
        return result;
    }
    if (!lua_istable(lua, 2) || lua_rawlen(lua, 2) != 2)
        throw std::runtime_error("a touch needs a view or a point {x, y}, not " + describe(lua, 2));
    result.x = coordinate(lua, 2, 1);
    result.y = coordinate(lua, 2, 2);
    return result;
}

int tap(lua_State *lua, Phone &phone, Script &) {
    phone.finger.tap(target(lua, phone));
    return 0;
}

int hold(lua_State *lua, Phone &phone, Script &) {
    phone.finger.hold(target(lua, phone), duration(lua, 3));
    return 0;
}

int drag(lua_State *lua, Phone &phone, Script &) {
    phone.finger.drag(target(lua, phone), finiteNumber(lua, 3, "dx"), finiteNumber(lua, 4, "dy"),
                      duration(lua, 5));
    return 0;
}

int fling(lua_State *lua, Phone &phone, Script &) {
    phone.finger.fling(target(lua, phone), finiteNumber(lua, 3, "dx"), finiteNumber(lua, 4, "dy"),
                       duration(lua, 5));
    return 0;
}

int down(lua_State *lua, Phone &phone, Script &) {
    phone.finger.down(target(lua, phone));
    return 0;
}

int move(lua_State *lua, Phone &phone, Script &) {
    phone.finger.move(finiteNumber(lua, 2, "x"), finiteNumber(lua, 3, "y"));
    return 0;
}

int up(lua_State *, Phone &phone, Script &) {
    phone.finger.up();
    return 0;
}

} // namespace

std::span<const Method> touchMethods() {
    static const Method methods[] = {{"tap", 1, tap},     {"hold", 2, hold}, {"drag", 4, drag},
                                     {"fling", 4, fling}, {"down", 1, down}, {"move", 2, move},
                                     {"up", 0, up}};
    return methods;
}

} // namespace sim

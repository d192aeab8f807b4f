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

// The finger that a call names after its other arguments.
Finger &finger(lua_State *lua, Phone &phone, int index) {
    return phone.fingerNumbered(lua_isnoneornil(lua, index) ? 1 : wholeNumber(lua, index, "a finger"));
}

int down(lua_State *lua, Phone &phone, Script &) {
    finger(lua, phone, 3).down(target(lua, phone));
    return 0;
}

int move(lua_State *lua, Phone &phone, Script &) {
    finger(lua, phone, 4).move(finiteNumber(lua, 2, "x"), finiteNumber(lua, 3, "y"));
    return 0;
}

int up(lua_State *lua, Phone &phone, Script &) {
    finger(lua, phone, 2).up();
    return 0;
}

} // namespace

Finger &Phone::fingerNumbered(int64_t number) {
    constexpr int64_t kFingers = 10;
    if (number < 1 || number > kFingers)
        throw std::runtime_error("fingers are numbered from 1 to " + std::to_string(kFingers));
    if (number == 1) return finger;
    return otherFingers.try_emplace(number, device, number - 1).first->second;
}

std::span<const Method> touchMethods() {
    static const Method methods[] = {{"tap", 1, tap},     {"hold", 2, hold}, {"drag", 4, drag},
                                     {"fling", 4, fling}, {"down", 2, down}, {"move", 3, move},
                                     {"up", 1, up}};
    return methods;
}

} // namespace sim

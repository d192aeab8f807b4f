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
    static const Described target = {"target",
                                     "a view (its centre as it was seen) or {x, y}, points of the screen "
                                     "held upright"},
                           dx = {"dx", "points to the right"}, dy = {"dy", "points downwards"},
                           seconds = {"seconds", "how long"},
                           finger = {"[finger]", "which, 1 to 10; 1 without it"};
    static const Method methods[] = {
        {"tap",
         tap,
         {target},
         "A finger lands and lifts 0.1 s later. On a view that is covered the touch goes to what lies above, "
         "on one "
         "that is gone to where it was; both give a `warning` event."},
        {"hold", hold, {target, seconds}, "A finger lands, keeps still and lifts."},
        {"drag",
         drag,
         {target, dx, dy, seconds},
         "A finger lands, moves with 60 samples a second, rests for 0.1 s and lifts. More than 10 points are "
         "a pan."},
        {"fling", fling, {target, dx, dy, seconds}, "The same, but it lifts with its last sample."},
        {"down", down, {target, finger}, "A finger lands and stays."},
        {"move",
         move,
         {{"x", "points from the left"}, {"y", "points from the top"}, finger},
         "Moves a finger that is down."},
        {"up", up, {finger}, "Lifts a finger."}};
    return methods;
}

} // namespace sim

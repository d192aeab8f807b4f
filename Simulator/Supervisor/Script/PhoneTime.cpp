#include "Phone.hpp"
#include "Runtime/Values/Nanoseconds.hpp"

namespace sim {

namespace {

// Long beyond anything that ends by itself on a phone.
constexpr double kDefaultLimit = 60;

int wait(lua_State *lua, Phone &phone, Script &) {
    phone.device.advance(fromSeconds(duration(lua, 2)));
    return 0;
}

int settle(lua_State *lua, Phone &phone, Script &) {
    double limit = lua_isnoneornil(lua, 2) ? kDefaultLimit : duration(lua, 2);
    lua_pushnumber(lua, toSeconds(phone.device.settle(fromSeconds(limit))));
    return 1;
}

int now(lua_State *lua, Phone &phone, Script &) {
    lua_pushnumber(lua, toSeconds(phone.device.now()));
    return 1;
}

} // namespace

std::span<const Method> timeMethods() {
    static const Method methods[] = {{"wait", 1, wait}, {"settle", 1, settle}, {"now", 0, now}};
    return methods;
}

} // namespace sim

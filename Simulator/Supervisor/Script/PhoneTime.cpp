#include "Conversion.hpp"
#include "Phone.hpp"
#include "Runtime/Values/Nanoseconds.hpp"
#include "Supervisor/Machine/LongWait.hpp"

#include <stdexcept>

namespace sim {

namespace {

// Long beyond anything that ends by itself on a phone.
constexpr double kDefaultLimit = 60;
// Some thirty years; the clock counts nanoseconds.
constexpr double kLongest = 1e9;

int wait(lua_State *lua, Phone &phone, Script &) {
    double seconds = duration(lua, 2);
    if (seconds > kLongest)
        throw std::runtime_error("the number of seconds must be at most 1e9, not " + describe(lua, 2));
    waitLong(phone.device, fromSeconds(seconds));
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
    static const Method methods[] = {
        {"wait",
         wait,
         {{"seconds", "how long"}},
         "Lets time pass on the whole device. While a finger is on a scroll view, timers of the default "
         "run-loop "
         "mode wait."},
        {"settle",
         settle,
         {{"[limit]", "the most to wait, in seconds; 60 without it"}},
         "Lets time pass until no animation that ends, touch or deceleration is under way, and gives the "
         "seconds "
         "that passed. Repeating timers and endless animations do not count; a finger that is down does. "
         "Past the "
         "limit it is an error that names what is still busy."},
        {"now", now, {}, "Seconds since `boot` returned: the clock of the events' `t`."}};
    return methods;
}

} // namespace sim

#include "Conversion.hpp"
#include "Phone.hpp"

#include <stdexcept>

namespace sim {

namespace {

int display(lua_State *lua, Phone &phone, Script &) {
    if (!lua_isboolean(lua, 2))
        throw std::runtime_error("the display is on or off: true or false, not " + describe(lua, 2));
    phone.device.act("display", {{"on", lua_toboolean(lua, 2) != 0}});
    return 0;
}

int lock(lua_State *, Phone &phone, Script &) {
    phone.device.act("lock");
    return 0;
}

int unlock(lua_State *, Phone &phone, Script &) {
    phone.device.act("unlock");
    return 0;
}

int homeTwice(lua_State *, Phone &phone, Script &) {
    phone.device.act("home_twice");
    return 0;
}

int banner(lua_State *lua, Phone &phone, Script &) {
    phone.device.act("banner", {{"text", text(lua, 2, "the banner's text")}});
    return 0;
}

int finger(lua_State *lua, Phone &phone, Script &) {
    int64_t event = wholeNumber(lua, 2, "an event of the sensor");
    if (event < 0) throw std::runtime_error("an event of the sensor must not be negative");
    if (phone.device.act("finger", {{"event", event}}) == Value(false))
        phone.device.warn("the device has no fingerprint sensor");
    return 0;
}

} // namespace

std::span<const Method> lockMethods() {
    static const Method methods[] = {{"display", 1, display}, {"lock", 0, lock},
                                     {"unlock", 0, unlock},   {"home_twice", 0, homeTwice},
                                     {"banner", 1, banner},   {"finger", 1, finger}};
    return methods;
}

} // namespace sim

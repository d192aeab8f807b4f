#include "Conversion.hpp"
#include "FingerEvents.hpp"
#include "Phone.hpp"
#include "Supervisor/Text/Suggest.hpp"

#include <algorithm>
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

int64_t fingerEvent(lua_State *lua) {
    if (lua_type(lua, 2) != LUA_TSTRING) {
        int64_t number = wholeNumber(lua, 2, "an event of the sensor");
        if (number < 0) throw std::runtime_error("an event of the sensor must not be negative");
        return number;
    }
    std::string name = text(lua, 2, "an event of the sensor");
    auto found = std::ranges::find_if(fingerEvents(), [&](const auto &event) { return name == event.name; });
    if (found != fingerEvents().end()) return found->number;
    std::vector<std::string> names;
    for (const auto &event : fingerEvents()) names.emplace_back(event.name);
    throw std::runtime_error("the sensor has no event '" + name + "'" + suggestion(name, names));
}

int finger(lua_State *lua, Phone &phone, Script &) {
    if (phone.device.act("finger", {{"event", fingerEvent(lua)}}) == Value(false))
        phone.device.warn("the device has no fingerprint sensor");
    return 0;
}

} // namespace

std::span<const FingerEvent> fingerEvents() {
    static const FingerEvent events[] = {{"up", 0, "the finger left the sensor"},
                                         {"down", 1, "a finger touches the sensor"},
                                         {"match", 3, "the finger is an enrolled one"},
                                         {"failed", 5, "the sensor failed, as with 6 to 8"},
                                         {"no_match", 9, "it is a stranger's, as with 10"}};
    return events;
}

std::span<const Method> lockMethods() {
    static const Method methods[] = {
        {"display",
         display,
         {{"on", "boolean"}},
         "Turns the display off, which locks a device that has a passcode and takes every finger away, or "
         "on, which "
         "shows the lock screen. A dark screen takes no touches, and pictures of it are black."},
        {"lock",
         lock,
         {},
         "A press of the button at the edge: off, on a dark device on, on the lock screen."},
        {"unlock",
         unlock,
         {},
         "Leaves the lock screen, with the device's passcode if it has one; nothing happens while the "
         "display is off "
         "or no lock screen is up. By touch, one slides to the right and enters the passcode of every "
         "simulated "
         "device, 1234."},
        {"home_twice",
         homeTwice,
         {},
         "Two quick clicks of the home button, without the single one before; on a dark device they turn the "
         "display "
         "on and do no more."},
        {"banner",
         banner,
         {{"text", "what stands in it"}},
         "A banner for 5 s, from the first message application installed, else from the first application; "
         "it shows "
         "over the lock screen too. The next one takes its place."},
        {"finger",
         finger,
         {{"event", "a number or a name; `help finger` lists the names"}},
         "An event of the fingerprint sensor. Observers hear of it while somebody has matching switched on; "
         "the "
         "device itself is not unlocked by it. A device without a sensor gives a `warning` event."}};
    return methods;
}

} // namespace sim

#include "Conversion.hpp"
#include "Record.hpp"
#include "Supervisor/Text/Suggest.hpp"
#include "ViewTable.hpp"

#include <stdexcept>

namespace sim {

namespace {

[[noreturn]] void refuseApplication(const std::string &identifier, const Phone &phone) {
    std::vector<std::string> known;
    for (const auto &application : phone.device.options().applications)
        known.push_back(application.identifier);
    throw std::runtime_error("there is no application '" + identifier + "'" + suggestion(identifier, known));
}

int badge(lua_State *lua, Phone &phone, Script &) {
    std::string identifier = text(lua, 2, "the application's identifier");
    int64_t value = lua_isnoneornil(lua, 3) ? 0 : wholeNumber(lua, 3, "a badge");
    if (value < 0) throw std::runtime_error("a badge must not be negative");
    Value known = phone.device.act("badge", {{"id", identifier}, {"value", value}});
    if (known == Value(false)) refuseApplication(identifier, phone);
    return 0;
}

int run(lua_State *lua, Phone &phone, Script &) {
    std::string identifier = text(lua, 2, "the application's identifier");
    if (phone.device.act("run", {{"id", identifier}}) == Value(false)) refuseApplication(identifier, phone);
    return 0;
}

int home(lua_State *, Phone &phone, Script &) {
    phone.device.act("home");
    return 0;
}

int restyle(lua_State *, Phone &phone, Script &) {
    phone.device.act("restyle");
    return 0;
}

int rotate(lua_State *lua, Phone &phone, Script &) {
    int64_t orientation = wholeNumber(lua, 2, "the orientation");
    if (orientation < 1 || orientation > 4)
        throw std::runtime_error("an orientation is 1 (upright), 2 (upside down), 3 or 4 (on its side)");
    phone.device.act("rotate", {{"orientation", orientation}});
    return 0;
}

int reachability(lua_State *lua, Phone &phone, Script &) {
    if (!lua_isboolean(lua, 2)) throw std::runtime_error("Reachability is on (true) or off (false)");
    bool on = lua_toboolean(lua, 2);
    if (phone.device.act("reachability", {{"on", on}}) == Value(false))
        phone.device.warn("this device has no Reachability");
    return 0;
}

int respring(lua_State *, Phone &phone, Script &) {
    phone.owner->respring();
    return 0;
}

int activator(lua_State *, Phone &phone, Script &) {
    const auto &listener = phone.device.package().activatorListener;
    Value found = phone.device.act("activator", {{"listener", listener}});
    if (found == Value(false)) phone.device.warn("no listener '" + listener + "' takes the event");
    return 0;
}

int call(lua_State *lua, Phone &phone, Script &) {
    Object arguments{{"selector", text(lua, 2, "the selector")}};
    if (isView(lua, 3)) {
        arguments.emplace("view", viewNumber(lua, 3, phone));
    } else if (lua_type(lua, 3) == LUA_TNUMBER || lua_type(lua, 3) == LUA_TSTRING) {
        arguments.emplace("argument", toValue(lua, 3));
    } else if (!lua_isnoneornil(lua, 3)) {
        throw std::runtime_error("the argument must be a number, a string or a view, not " +
                                 describe(lua, 3));
    }
    push(lua, phone.device.ask("call", std::move(arguments)));
    return 1;
}

int indicator(lua_State *lua, Phone &phone, Script &) {
    Value answer = phone.device.ask("indicator", {{"identifier", phone.device.package().statusBarItem}});
    Object fields = answer["fields"].object();
    push(lua, Value(fields));
    if (answer.has("matches")) {
        pushFirstView(lua, phone, answer);
        lua_setfield(lua, -2, "view");
    }
    makeRecord(lua, Record::indicator);
    return 1;
}

int foreground(lua_State *lua, Phone &phone, Script &) {
    push(lua, phone.device.ask("foreground"));
    return 1;
}

int switcher(lua_State *lua, Phone &phone, Script &) {
    push(lua, phone.device.ask("switcher"));
    return 1;
}

int icon(lua_State *lua, Phone &phone, Script &) {
    pushFirstView(lua, phone,
                  phone.device.ask("icon", {{"id", text(lua, 2, "the application's identifier")}}));
    return 1;
}

} // namespace

std::span<const Method> homeScreenMethods() {
    static const Described id = {"id", "the application's identifier: \"com.apple.mobilemail\""};
    static const Method methods[] = {
        {"badge", badge, {id, {"[n]", "the number; 0 or nil clears"}}, "Puts a badge on an application."},
        {"run", run, {id}, "Brings an application to the front."},
        {"home",
         home,
         {},
         "One click of the home button; on a dark device it turns the display on and does no more."},
        {"restyle",
         restyle,
         {},
         "The status bar changes its style and lays its items out anew, dropping what others put on their "
         "layers."},
        {"respring",
         respring,
         {},
         "Starts the home screen anew; events and log go on. Badges, running applications, a lock with a "
         "passcode "
         "and the side on which the device is held stay; a finger that was down does not."},
        {"rotate",
         rotate,
         {{"orientation", "1 upright, 2 upside down, 3 and 4 on its sides"}},
         "Turns the device; what turns with it is told under `interface_turns` of `boot`. Pictures, points "
         "and frames "
         "are those of the interface held upright."},
        {"reachability",
         reachability,
         {{"on", "boolean"}},
         "Pulls the screen down or lets it go. It ends by a home click, the switcher, a launch, the lock, "
         "the "
         "display, a turn, and by itself after 8 s without a touch. A device without it gives a `warning` "
         "event."},
        {"activator", activator, {}, "The event that is assigned to the extension's Activator listener."},
        {"call",
         call,
         {{"selector", "with its colons"}, {"[argument]", "a number, a string or a view"}},
         "Sends a message to the SpringBoard object and gives its boolean, number or string: for looking, "
         "not for "
         "driving. A method that gives a `char` gives a boolean."},
        {"indicator", indicator, {}, "The extension's status-bar item as a table."},
        {"foreground",
         foreground,
         {},
         "Identifier of the application in front, or nil; nil while the device is locked."},
        {"switcher", switcher, {}, "Identifiers in the switcher, most recent first."},
        {"icon", icon, {id}, "The view of its icon on the home screen, or nil."}};
    return methods;
}

} // namespace sim

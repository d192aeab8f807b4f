// What a script does as one who does not see the screen.
#include "Conversion.hpp"
#include "ElementTable.hpp"
#include "Supervisor/Boot/AidOptions.hpp"
#include "Supervisor/Text/Suggest.hpp"
#include "Windows.hpp"

#include <algorithm>
#include <stdexcept>

namespace sim {

namespace {

int spoken(lua_State *lua, Phone &phone, Script &) {
    pushElements(lua, phone, phone.device.ask("spoken", windowArgument(lua, 2)));
    return 1;
}

int focus(lua_State *lua, Phone &phone, Script &) {
    pushElements(lua, phone, phone.device.ask("focus"));
    lua_rawgeti(lua, -1, 1);
    return 1;
}

Object element(lua_State *lua, const Phone &phone) { return {{"element", elementNumber(lua, 2, phone)}}; }

int activate(lua_State *lua, Phone &phone, Script &) {
    Value point = phone.device.act("activate", element(lua, phone));
    if (point.has("x")) phone.finger.tap({.view = {}, .x = point["x"].number(), .y = point["y"].number()});
    return 0;
}

int act(lua_State *lua, Phone &phone, Script &) {
    Object arguments = element(lua, phone);
    std::string name = text(lua, 3, "the action");
    arguments.emplace("action", name);
    Value done = phone.device.act("act", std::move(arguments));
    if (done.isArray()) {
        std::vector<std::string> known;
        for (const auto &action : done.array()) known.push_back(action.string());
        throw std::runtime_error("the element has no action '" + name + "'" +
                                 (known.empty()                  ? ", nor any other"
                                  : nearest(name, known).empty() ? "; it has " + listed(known)
                                                                 : suggestion(name, known)));
    }
    push(lua, done);
    return 1;
}

std::string oneOf(lua_State *lua, int index, const char *what, const std::vector<std::string> &known) {
    std::string word = text(lua, index, what);
    if (!std::ranges::count(known, word))
        throw std::runtime_error(std::string(what) + " is " + listed(known) + ", not '" + word + "'" +
                                 suggestion(word, known));
    return word;
}

int adjust(lua_State *lua, Phone &phone, Script &) {
    Object arguments = element(lua, phone);
    arguments.emplace("up", oneOf(lua, 3, "the direction", {"up", "down"}) == "up");
    phone.device.act("adjust", std::move(arguments));
    return 0;
}

int escape(lua_State *lua, Phone &phone, Script &) {
    push(lua, phone.device.act("escape"));
    return 1;
}

int scrollPage(lua_State *lua, Phone &phone, Script &) {
    std::string direction = oneOf(lua, 2, "the direction", {"left", "right", "up", "down"});
    push(lua, phone.device.act("scroll_page", {{"direction", direction}}));
    return 1;
}

int aid(lua_State *lua, Phone &phone, Script &) {
    std::string name = text(lua, 2, "the name of an aid");
    if (lua_isnoneornil(lua, 3)) throw std::runtime_error("what is '" + name + "' to be?");
    phone.owner->setAids(changedAid(phone.owner->options().aids, name, toValue(lua, 3)));
    return 0;
}

} // namespace

std::span<const Method> speakingMethods() {
    static const Described element = {"element", "one that `spoken` or `focus` gave"};
    static const Method methods[] = {
        {"spoken",
         spoken,
         {{"[window]",
           "\"overlay\", \"statusbar\", \"home\", \"lock\", \"alert\" or \"app\"; all without it"}},
         "The list of the elements that VoiceOver reads, in the order in which it visits them. While a modal "
         "view "
         "stands, those that it holds. These calls need no VoiceOver: they ask as it would."},
        {"focus", focus, {}, "The element that VoiceOver is on; nil while it is off or finds none."},
        {"activate",
         activate,
         {element},
         "A double tap: the element does it itself, or a finger taps at its activation point for 0.1 s."},
        {"act",
         act,
         {element, {"action", "one of its `actions`"}},
         "Does something else with it; gives whether it was done. Elements have actions from iOS 8 on."},
        {"adjust",
         adjust,
         {element, {"direction", "\"up\" or \"down\""}},
         "A swipe of one finger on an adjustable element."},
        {"escape",
         escape,
         {},
         "The scrub of two fingers: whoever holds the focus, or the first element, is asked, and all that "
         "hold it; "
         "gives whether somebody took it."},
        {"scroll_page",
         scrollPage,
         {{"direction", "the way of the fingers: \"left\" for the next page, \"right\", \"up\", \"down\""}},
         "Three fingers that swipe; gives whether something scrolled."},
        {"aid",
         aid,
         {{"name", "one of the options of `boot`: \"voiceover\", \"reduce_motion\", \"text_size\" …"},
          {"value", "as there"}},
         "Changes what the user has set to be helped, on the whole device."}};
    return methods;
}

} // namespace sim

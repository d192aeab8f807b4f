// What a script does with the Settings application.
#include "Conversion.hpp"
#include "Phone.hpp"
#include "Record.hpp"
#include "Supervisor/Machine/SettingsDriver.hpp"
#include "Supervisor/Text/Suggest.hpp"

#include <stdexcept>

namespace sim {

namespace {

const RecordKind kPage{"page", {"title", "class", "rows"}};
const RecordKind kRow{"row", {"label", "kind", "value", "footer", "choices", "icon"}};
const RecordKind kAlert{"alert", {"title", "message", "buttons"}};
const RecordKind kSheet{"sheet", {"title", "group", "label", "dots", "cancel"}};

SettingsDriver hand(Phone &pane) { return {pane.device, pane.finger}; }

int openSettings(lua_State *lua, Phone &phone, Script &script) {
    auto pane = std::make_unique<SettingsProcess>(*phone.owner);
    pushPhone(lua, script.add(std::make_unique<Phone>(phone.owner, std::move(pane), nextSerial())));
    return 1;
}

int page(lua_State *lua, Phone &pane, Script &) {
    Value answer = pane.device.ask("page");
    push(lua, Object{{"title", answer["title"]}, {"class", answer["class"]}});
    pushRecords(lua, kRow, answer["rows"].array());
    lua_setfield(lua, -2, "rows");
    makeRecord(lua, kPage);
    return 1;
}

// A record of that kind, or nil when the process has none.
int pushAnswer(lua_State *lua, Phone &pane, const char *request, const RecordKind &kind) {
    Value answer = pane.device.ask(request);
    if (answer.isNull()) {
        lua_pushnil(lua);
    } else {
        pushRecord(lua, kind, answer);
    }
    return 1;
}

int alert(lua_State *lua, Phone &pane, Script &) { return pushAnswer(lua, pane, "alert", kAlert); }
int sheet(lua_State *lua, Phone &pane, Script &) { return pushAnswer(lua, pane, "sheet", kSheet); }

int open(lua_State *lua, Phone &pane, Script &) {
    hand(pane).open(text(lua, 2, "the row's label"));
    return 0;
}

int toggle(lua_State *lua, Phone &pane, Script &) {
    hand(pane).toggle(text(lua, 2, "the row's label"));
    return 0;
}

int choose(lua_State *lua, Phone &pane, Script &) {
    hand(pane).choose(text(lua, 2, "the row's label"), text(lua, 3, "the title"));
    return 0;
}

int press(lua_State *lua, Phone &pane, Script &) {
    hand(pane).press(text(lua, 2, "what is written on it"));
    return 0;
}

int back(lua_State *, Phone &pane, Script &) {
    hand(pane).back();
    return 0;
}

int type(lua_State *lua, Phone &pane, Script &) {
    hand(pane).type(text(lua, 2, "what is typed"));
    return 0;
}

int erase(lua_State *lua, Phone &pane, Script &) {
    int64_t count = lua_isnoneornil(lua, 2) ? 1 : wholeNumber(lua, 2, "the number of characters");
    if (count < 0) throw std::runtime_error("the number of characters must not be negative");
    hand(pane).erase(count);
    return 0;
}

int swipe(lua_State *lua, Phone &pane, Script &) {
    std::string way = text(lua, 2, "the direction");
    if (way != "left" && way != "right")
        throw std::runtime_error("a finger swipes \"left\" or \"right\", not '" + way + "'" +
                                 suggestion(way, {"left", "right"}));
    hand(pane).swipe(way == "left");
    return 0;
}

int rotate(lua_State *lua, Phone &pane, Script &) {
    int64_t orientation = wholeNumber(lua, 2, "the orientation");
    if (orientation < 1 || orientation > 4) throw std::runtime_error("the orientation must be 1, 2, 3 or 4");
    pane.device.act("rotate", {{"orientation", orientation}});
    return 0;
}

} // namespace

std::span<const Method> openingMethods() {
    static const Method methods[] = {{"open_settings", 0, openSettings}};
    return methods;
}

std::span<const Method> paneMethods() {
    static const Method methods[] = {{"page", 0, page},   {"alert", 0, alert},   {"sheet", 0, sheet},
                                     {"open", 1, open},   {"toggle", 1, toggle}, {"choose", 2, choose},
                                     {"press", 1, press}, {"back", 0, back},     {"type", 1, type},
                                     {"erase", 1, erase}, {"swipe", 1, swipe},   {"rotate", 1, rotate}};
    return methods;
}

} // namespace sim

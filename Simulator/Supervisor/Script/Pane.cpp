// What a script does with the Settings application.
#include "Conversion.hpp"
#include "Phone.hpp"
#include "Record.hpp"
#include "Supervisor/Machine/SettingsDriver.hpp"
#include "Supervisor/Text/Suggest.hpp"

#include <stdexcept>

namespace sim {

namespace {

SettingsDriver hand(Phone &pane) { return {pane.device, pane.finger}; }

int openSettings(lua_State *lua, Phone &phone, Script &script) {
    auto pane = std::make_unique<SettingsProcess>(*phone.owner);
    pushPhone(lua, script.add(std::make_unique<Phone>(phone.owner, std::move(pane), nextSerial())));
    return 1;
}

int page(lua_State *lua, Phone &pane, Script &) {
    Value answer = pane.device.ask("page");
    push(lua, Object{{"title", answer["title"]}, {"class", answer["class"]}});
    pushRecords(lua, Record::row, answer["rows"].array());
    lua_setfield(lua, -2, "rows");
    makeRecord(lua, Record::page);
    return 1;
}

// A record of that kind, or nil when the process has none.
int pushAnswer(lua_State *lua, Phone &pane, const char *request, Record kind) {
    Value answer = pane.device.ask(request);
    if (answer.isNull()) {
        lua_pushnil(lua);
    } else {
        pushRecord(lua, kind, answer);
    }
    return 1;
}

int alert(lua_State *lua, Phone &pane, Script &) { return pushAnswer(lua, pane, "alert", Record::alert); }
int sheet(lua_State *lua, Phone &pane, Script &) { return pushAnswer(lua, pane, "sheet", Record::sheet); }

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
    static const Method methods[] = {{"open_settings",
                                      openSettings,
                                      {},
                                      "Starts the Settings application of the device at the extension's page "
                                      "and gives its pane. One that was "
                                      "open is closed; the home screen hears nothing of it."}};
    return methods;
}

std::span<const Method> paneMethods() {
    static const Described row = {"label", "what is written on the row"};
    static const Method methods[] = {
        {"page", page, {}, "The page in front as a table, a presented one too."},
        {"alert", alert, {}, "The alert in front as a table, or nil."},
        {"sheet", sheet, {}, "The sheet that asks for a code as a table, or nil."},
        {"open", open, {row}, "Taps a row: a link, or a list of choices. Rows off screen are scrolled to."},
        {"toggle", toggle, {row}, "Turns a row's switch."},
        {"choose",
         choose,
         {row, {"title", "the choice"}},
         "Chooses from a list, which is opened unless it is open already and stays open, or from the "
         "segments of a "
         "row."},
        {"press",
         press,
         {{"title", "what is written on it"}},
         "Presses a button: in an alert first, which lets nothing else be pressed, then in bars, then any "
         "other, "
         "then a button row. Does not wait afterwards: `settle`."},
        {"back", back, {}, "Presses the button at the left of the bar; a page that was presented has none."},
        {"type",
         type,
         {{"text", "what to type"}},
         "Types. Characters that the keyboard on the screen has are tapped, 0.1 s each; others come as from "
         "a "
         "hardware keyboard. Waits for what moves, at most 2 s."},
        {"erase", erase, {{"[n]", "how many characters; 1 without it"}}, "Presses the delete key."},
        {"swipe",
         swipe,
         {{"direction", "\"left\" or \"right\", the way of the finger"}},
         "A fling over the middle of what pages sideways."},
        {"rotate",
         rotate,
         {{"orientation", "1 upright, 2 upside down, 3 and 4 on its sides"}},
         "Turns the device; the page in front may refuse. From iOS 8 on a phone held across has no status "
         "bar."}};
    return methods;
}

} // namespace sim

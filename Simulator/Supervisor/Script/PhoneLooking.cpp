#include "Conversion.hpp"
#include "Record.hpp"
#include "Supervisor/Machine/ViewDump.hpp"
#include "Supervisor/Text/Suggest.hpp"
#include "ViewTable.hpp"
#include "Windows.hpp"

#include <stdexcept>

namespace sim {

namespace {

Value criterion(lua_State *lua, const std::string &name, const Phone &phone) {
    if (name == "inside" || name == "parent") return viewNumber(lua, -1, phone);
    if (name == "tag") return wholeNumber(lua, -1, "'tag'");
    if (name == "visible") {
        if (!lua_isboolean(lua, -1)) throw std::runtime_error("'visible' must be true or false");
        return lua_toboolean(lua, -1) != 0;
    }
    std::string value = text(lua, -1, ("'" + name + "'").c_str());
    if (name == "window") checkWindow(value);
    return value;
}

// The table of criteria as the home screen takes it.
Object query(lua_State *lua, const Phone &phone) {
    if (!lua_istable(lua, 2)) throw std::runtime_error("a query is a table, not " + describe(lua, 2));
    Object result;
    for (lua_pushnil(lua); lua_next(lua, 2); lua_pop(lua, 1)) {
        if (lua_type(lua, -2) != LUA_TSTRING)
            throw std::runtime_error("a query has names for what it asks, not " + describe(lua, -2));
        std::string name = lua_tostring(lua, -2);
        checkField(Record::query, name);
        result.emplace(name, criterion(lua, name, phone));
    }
    return result;
}

// A class that does not exist finds nothing, which is right where a version lacks it or its library is not
// loaded; more often it is mistyped.
Value ask(Phone &phone, const Object &criteria, bool first) {
    Object arguments{{"query", criteria}};
    if (first) arguments.emplace("first", true);
    Value answer = phone.device.ask("find", std::move(arguments));
    if (!answer.has("classes")) return answer;
    const std::string &name = criteria.at("class").string();
    std::vector<std::string> known;
    for (const auto &candidate : answer["classes"].array()) known.push_back(candidate.string());
    if (phone.missingClasses.insert(name).second)
        phone.device.warn("there is no class '" + name + "'" + suggestion(name, known));
    return answer;
}

int find(lua_State *lua, Phone &phone, Script &) {
    pushFirstView(lua, phone, ask(phone, query(lua, phone), true));
    return 1;
}

int all(lua_State *lua, Phone &phone, Script &) {
    pushViews(lua, phone, ask(phone, query(lua, phone), false));
    return 1;
}

int again(lua_State *lua, Phone &phone, Script &) {
    pushFirstView(lua, phone, phone.device.ask("view", {{"view", viewNumber(lua, 2, phone)}}));
    return 1;
}

int dump(lua_State *lua, Phone &phone, Script &) {
    lua_pushstring(lua, viewDump(phone.device.ask("windows", windowArgument(lua, 2))).c_str());
    return 1;
}

} // namespace

std::span<const Method> lookingMethods() {
    static const Described query = {"query", "a table; `help query` lists its fields"};
    static const Method methods[] = {
        {"find",
         find,
         {query},
         "The first view that fits, or nil. Windows come by level, hidden ones before those that are shown "
         "at the "
         "same level; a view comes before what it holds."},
        {"all", all, {query}, "The list of the views that fit, in the same order."},
        {"again",
         again,
         {{"view", "a view that was looked up before"}},
         "The same view as it is now, or nil when it is gone."},
        {"dump",
         dump,
         {{"[window]", "\"overlay\", \"statusbar\", \"home\", \"lock\", \"alert\" or \"app\"; all "
                       "without it"}},
         "The tree of views as text."}};
    return methods;
}

} // namespace sim

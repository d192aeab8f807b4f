#include "Conversion.hpp"
#include "Library.hpp"
#include "Supervisor/Text/Readable.hpp"

#include <cmath>

namespace sim {

namespace {

// What the expectation is about, as the script says it.
std::string message(lua_State *lua, int index) {
    if (lua_isnoneornil(lua, index)) return "";
    return lua_type(lua, index) == LUA_TSTRING ? text(lua, index, "the message") : describe(lua, index);
}

// Reports unless it held; gives whether it did.
int conclude(lua_State *lua, Script &script, bool held, const std::string &message,
             const std::string &details) {
    if (held)
        script.hold();
    else
        script.fail(callPlace(lua),
                    message.empty() ? details : message + (details.empty() ? "" : "\n    " + details));
    lua_pushboolean(lua, held);
    return 1;
}

int expect(lua_State *lua, Script &script) {
    std::string text = message(lua, 2);
    return conclude(lua, script, lua_toboolean(lua, 1), text, text.empty() ? "expected something true" : "");
}

int expectEqual(lua_State *lua, Script &script) {
    if (lua_rawequal(lua, 1, 2)) return conclude(lua, script, true, "", "");
    Value actual = toComparable(lua, 1), wanted = toComparable(lua, 2);
    auto difference = firstDifference(actual, wanted);
    // Functions and the like are alike in words only.
    int kind = lua_type(lua, 1);
    bool opaque = kind == LUA_TFUNCTION || kind == LUA_TUSERDATA || kind == LUA_TTHREAD;
    if (!difference && opaque)
        difference = "two different values of type " + std::string(luaL_typename(lua, 1));
    constexpr size_t kShort = 200;
    std::string details = difference.value_or("");
    if (difference && lua_istable(lua, 1) && lua_istable(lua, 2)) {
        for (const auto &[label, value] : {std::pair("\n    got    ", &actual), {"\n    wanted ", &wanted}})
            if (std::string whole = readable(*value); whole.size() <= kShort) details += label + whole;
    }
    return conclude(lua, script, !difference, message(lua, 3), details);
}

int expectNear(lua_State *lua, Script &script) {
    double wanted = finiteNumber(lua, 2, "the wanted number"),
           tolerance = finiteNumber(lua, 3, "the tolerance");
    bool held = lua_type(lua, 1) == LUA_TNUMBER && std::abs(lua_tonumber(lua, 1) - wanted) <= tolerance;
    std::string details =
        held ? "" : describe(lua, 1) + ", wanted " + describe(lua, 2) + " within " + describe(lua, 3);
    return conclude(lua, script, held, message(lua, 4), details);
}

} // namespace

std::span<const Global> expectationGlobals() {
    static const Described message = {"[message]", "what it is about, in a report"};
    static const Global globals[] = {
        {"expect",
         bound<expect>,
         {{"condition", "true, or anything but false and nil"}, message},
         "Holds when the condition does. An expectation that does not hold is reported with the device's "
         "state and "
         "fails the run, which goes on; it gives whether it held."},
        {"expect_eq",
         bound<expectEqual>,
         {{"actual", "what is there"}, {"wanted", "what should be"}, message},
         "Holds when the two are equal; tables by what they hold, numbers by value."},
        {"expect_near",
         bound<expectNear>,
         {{"actual", "what is there"}, {"wanted", "a number"}, {"tolerance", "belongs to it"}, message},
         "Holds when the two numbers differ by the tolerance at most."}};
    return globals;
}

} // namespace sim

#include "ViewTable.hpp"

#include "Binding.hpp"
#include "Conversion.hpp"
#include "Record.hpp"
#include "Runtime/Values/Packed.hpp"
#include "Supervisor/Machine/ViewDump.hpp"

#include <algorithm>
#include <cmath>
#include <map>
#include <stdexcept>

namespace sim {

namespace {

// One answer's views, shared by the tables that are made of it.
struct Snapshot {
    Value answer;
    std::map<int64_t, const Value *> views; // by number
    uint64_t phone = 0;
    unsigned generation = 0;
};

// What a view's table stands for; held by a table of all views whose keys are weak.
struct Identity {
    std::shared_ptr<const Snapshot> snapshot;
    int64_t number = 0;
};

constexpr const char *kIdentity = "view identity";
constexpr const char *kIdentities = "view identities";

int destroyIdentity(lua_State *lua) {
    static_cast<Identity *>(lua_touserdata(lua, 1))->~Identity();
    return 0;
}

// Pushes the table of all views' identities, which keeps no view.
void pushIdentities(lua_State *lua) {
    if (luaL_getsubtable(lua, LUA_REGISTRYINDEX, kIdentities)) return;
    lua_createtable(lua, 0, 1);
    lua_pushstring(lua, "k");
    lua_setfield(lua, -2, "__mode");
    lua_setmetatable(lua, -2);
}

// nullptr when no view is there.
const Identity *identity(lua_State *lua, int index) {
    if (!lua_istable(lua, index)) return nullptr;
    int view = lua_absindex(lua, index);
    pushIdentities(lua);
    lua_pushvalue(lua, view);
    lua_rawget(lua, -2);
    auto *found = static_cast<const Identity *>(lua_touserdata(lua, -1));
    lua_pop(lua, 2); // the view's table keeps it alive
    return found;
}

// Ties the table on top of the stack to what it stands for.
void setIdentity(lua_State *lua, std::shared_ptr<const Snapshot> snapshot, int64_t number) {
    pushIdentities(lua);
    lua_pushvalue(lua, -2);
    new (lua_newuserdatauv(lua, sizeof(Identity), 0)) Identity{std::move(snapshot), number};
    if (luaL_newmetatable(lua, kIdentity)) {
        lua_pushcfunction(lua, destroyIdentity);
        lua_setfield(lua, -2, "__gc");
    }
    lua_setmetatable(lua, -2);
    lua_rawset(lua, -3);
    lua_pop(lua, 1);
}

void pushAnimations(lua_State *lua, Array animations) {
    for (auto &animation : animations)
        // There is no number without end in JSON.
        if (animation["repeats"] == Value("forever")) animation.set("repeats", HUGE_VAL);
    pushRecords(lua, Record::animation, animations);
}

void pushField(lua_State *lua, const std::string &name, const Value &value) {
    if (name == "screen") return pushRecord(lua, Record::rectangle, value);
    if (name == "scroll") return pushRecord(lua, Record::scroll, value);
    if (name == "animations") return pushAnimations(lua, value.array());
    push(lua, value);
}

void makeView(lua_State *lua);

void pushView(lua_State *lua, const std::shared_ptr<const Snapshot> &snapshot, int64_t number) {
    luaL_checkstack(lua, 8, "too many views");
    const Value &view = *snapshot->views.at(number);
    lua_createtable(lua, 0, static_cast<int>(view.object().size()));
    for (const auto &[name, value] : view.object()) {
        if (name == "number" || name == "children" || value.isNull()) continue;
        pushField(lua, name, value);
        lua_setfield(lua, -2, name.c_str());
    }
    setIdentity(lua, snapshot, number);
    makeView(lua);
}

// Makes the list of a view's children and stores it in its table; leaves it on the stack.
void pushChildren(lua_State *lua, int view, const Identity &of) {
    auto snapshot = of.snapshot;
    const auto &children = (*snapshot->views.at(of.number))["children"].array();
    lua_createtable(lua, static_cast<int>(children.size()), 0);
    lua_Integer place = 0;
    for (const auto &child : children) {
        pushView(lua, snapshot, child.integer());
        lua_rawseti(lua, -2, ++place);
    }
    lua_pushvalue(lua, -1);
    lua_pushstring(lua, "children");
    lua_insert(lua, -2);
    lua_rawset(lua, view);
}

int readField(lua_State *lua, Script &) {
    const Identity *of = identity(lua, 1);
    std::string field = lua_type(lua, 2) == LUA_TSTRING ? text(lua, 2, "a field") : "";
    if (of && field == "children") {
        pushChildren(lua, 1, *of);
        return 1;
    }
    if (lua_type(lua, 2) == LUA_TSTRING) checkField(Record::view, field);
    lua_pushnil(lua);
    return 1;
}

int writeField(lua_State *lua, Script &) {
    checkField(Record::view, text(lua, 2, "a field"));
    throw std::runtime_error("a view is a snapshot: changing it changes nothing");
}

int viewToString(lua_State *lua, Script &) {
    const Identity *of = identity(lua, 1);
    if (!of) throw std::runtime_error("not a view");
    const Value &view = *of->snapshot->views.at(of->number);
    char frame[96];
    snprintf(frame, sizeof frame, " (%g %g; %g %g)", view["x"].number(), view["y"].number(),
             view["w"].number(), view["h"].number());
    lua_pushstring(lua, (viewTitle(view) + frame).c_str());
    return 1;
}

void makeView(lua_State *lua) {
    if (luaL_newmetatable(lua, "view")) {
        const luaL_Reg events[] = {{"__index", bound<readField>},
                                   {"__newindex", bound<writeField>},
                                   {"__tostring", bound<viewToString>},
                                   {nullptr, nullptr}};
        luaL_setfuncs(lua, events, 0);
    }
    lua_setmetatable(lua, -2);
}

std::shared_ptr<const Snapshot> makeSnapshot(lua_State *lua, const Phone &phone, Value answer) {
    auto snapshot = std::make_shared<Snapshot>();
    snapshot->answer = std::move(answer);
    snapshot->phone = phone.serial;
    snapshot->generation = phone.device.generation();
    for (const auto &view : snapshot->answer["views"].array())
        snapshot->views.emplace(view["number"].integer(), &view);
    // The interpreter sees of an answer no more than a pointer: without its weight it would let thousands
    // wait to be collected.
    constexpr size_t kStep = 1024;
    lua_gc(lua, LUA_GCSTEP, static_cast<int>(std::max<size_t>(weight(snapshot->answer) / kStep, 1)));
    return snapshot;
}

} // namespace

void pushViews(lua_State *lua, const Phone &phone, Value answer) {
    auto snapshot = makeSnapshot(lua, phone, std::move(answer));
    const auto &matches = snapshot->answer["matches"].array();
    lua_createtable(lua, static_cast<int>(matches.size()), 0);
    lua_Integer place = 0;
    for (const auto &match : matches) {
        pushView(lua, snapshot, match.integer());
        lua_rawseti(lua, -2, ++place);
    }
}

void pushFirstView(lua_State *lua, const Phone &phone, Value answer) {
    auto snapshot = makeSnapshot(lua, phone, std::move(answer));
    const auto &matches = snapshot->answer["matches"].array();
    if (matches.empty()) {
        lua_pushnil(lua);
    } else {
        pushView(lua, snapshot, matches[0].integer());
    }
}

bool isView(lua_State *lua, int index) { return identity(lua, index) != nullptr; }

int64_t viewNumber(lua_State *lua, int index, const Phone &phone) {
    const Identity *of = identity(lua, index);
    if (!of) throw std::runtime_error("expected a view, not " + describe(lua, index));
    if (of->snapshot->phone != phone.serial) throw std::runtime_error("the view is of another phone or pane");
    if (of->snapshot->generation != phone.device.generation())
        throw std::runtime_error("the view is from before the home screen booted again");
    return of->number;
}

void completeView(lua_State *lua, int index) {
    int view = lua_absindex(lua, index);
    const Identity *of = identity(lua, view);
    if (!of) return;
    lua_pushstring(lua, "children");
    bool missing = lua_rawget(lua, view) == LUA_TNIL;
    lua_pop(lua, 1);
    if (!missing) return;
    pushChildren(lua, view, *of);
    lua_pop(lua, 1);
}

} // namespace sim

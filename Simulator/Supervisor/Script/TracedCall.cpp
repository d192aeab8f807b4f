#include "TracedCall.hpp"

#include "Conversion.hpp"
#include "ViewTable.hpp"

#include <cstdio>
#include <iostream>

namespace sim {

namespace {

constexpr size_t kLongest = 80; // bytes of an argument

// The label of an accessible element; nullptr for what is none.
const char *labelOf(lua_State *lua, int index) {
    if (!lua_istable(lua, index)) return nullptr;
    lua_pushstring(lua, "label");
    const char *label = lua_rawget(lua, index) == LUA_TSTRING ? lua_tostring(lua, -1) : nullptr;
    lua_pop(lua, 1); // the table keeps it
    return label;
}

// A view by its title, an element by its label, other tables by what they hold.
std::string argument(lua_State *lua, int index) {
    std::string text;
    if (lua_type(lua, index) == LUA_TNUMBER) {
        char digits[32];
        snprintf(digits, sizeof digits, "%.6g", lua_tonumber(lua, index));
        return digits;
    }
    if (isView(lua, index)) {
        text = luaL_tolstring(lua, index, nullptr);
        lua_pop(lua, 1);
    } else if (const char *label = labelOf(lua, index)) {
        text = std::string("“") + label + "”";
    } else {
        text = describe(lua, index);
    }
    size_t end = kLongest;
    if (text.size() <= end) return text;
    while ((text[end] & 0xc0) == 0x80) --end;
    return text.substr(0, end) + "…";
}

std::vector<TracePlace> places(lua_State *lua) {
    std::vector<TracePlace> result;
    lua_Debug frame;
    for (int level = 1; lua_getstack(lua, level, &frame); ++level) {
        lua_getinfo(lua, "Sl", &frame);
        if (frame.currentline > 0) result.push_back({frame.source + 1, frame.currentline});
    }
    return result;
}

} // namespace

TracedCall::TracedCall(lua_State *lua, Script &script, Phone &phone, const char *name)
    : lua_(lua), trace_(script.trace()), phone_(phone) {
    if (!trace_) return;
    call_ = std::string(phone.pane ? "pane:" : "phone:") + name + "(";
    for (int i = 2; i <= lua_gettop(lua); ++i) call_ += (i > 2 ? ", " : "") + argument(lua, i);
    call_ += ")";
    before_.emplace(phone.device);
}

TracedCall::~TracedCall() {
    if (!trace_) return;
    try {
        if (TraceMoment(phone_.device) == *before_) return;
        trace_->addStep(phone_.device, phone_.serial, call_, places(lua_), *before_);
    } catch (const std::exception &error) {
        std::cerr << "no step of the trace for " << call_ << ": " << error.what() << '\n';
    }
}

void traceOpening(lua_State *lua, Phone &phone) {
    Trace *trace = scriptOf(lua).trace();
    if (!trace) return;
    lua_Debug function{};
    if (lua_getstack(lua, 0, &function)) lua_getinfo(lua, "n", &function);
    trace->addStep(phone.device, phone.serial, function.name ? function.name : "boot", places(lua),
                   TraceMoment(phone.device));
}

} // namespace sim

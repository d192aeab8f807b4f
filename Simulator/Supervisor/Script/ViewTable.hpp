// Views as scripts see them: tables with the fields of a snapshot, which remember what view they are of.
#pragma once

#include "Phone.hpp"

#include <lua.hpp>

namespace sim {

// Pushes the matches of an answer to a question for views, {"matches": [number], "views": [view]}, as a list.
// Each view's `children` are made when they are first asked for.
void pushViews(lua_State *lua, const Phone &phone, Value answer);
// The first match, or nil.
void pushFirstView(lua_State *lua, const Phone &phone, Value answer);

// Whether a view is there.
bool isView(lua_State *lua, int index);
// The number under which the home screen knows the view. Throws std::runtime_error when there is no view, or
// one of another phone or from before the home screen booted again.
int64_t viewNumber(lua_State *lua, int index, const Phone &phone);

// Makes a view's children, so that its table holds all it has; does nothing with other tables.
void completeView(lua_State *lua, int index);

} // namespace sim

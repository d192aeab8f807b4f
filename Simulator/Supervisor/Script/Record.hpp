// Tables with a fixed set of fields: a field that is absent reads as nil, one that never exists is an error.
#pragma once

#include "Runtime/Values/Value.hpp"

#include <lua.hpp>
#include <string>
#include <vector>

namespace sim {

struct RecordKind {
    const char *name; // "event"
    std::vector<std::string> fields;
};

// Pushes an object's members as a record. `kind` must live as long as the process.
void pushRecord(lua_State *lua, const RecordKind &kind, const Value &members);
// A list of them.
void pushRecords(lua_State *lua, const RecordKind &kind, const Array &list);

// Gives the table on top of the stack the kind's behaviour.
void makeRecord(lua_State *lua, const RecordKind &kind);

// Throws std::runtime_error for the name `field`, which is none of the kind's, and nothing otherwise.
void checkField(const RecordKind &kind, const std::string &field);

} // namespace sim

// Tables with a fixed set of fields: a field that is absent reads as nil, one that never exists is an error.
#pragma once

#include "Runtime/Values/Value.hpp"
#include "Supervisor/Reference/About.hpp"

#include <lua.hpp>
#include <span>
#include <string>
#include <vector>

namespace sim {

struct RecordKind {
    const char *name; // "event"
    About about;
    std::vector<Described> fields;
};

// Every kind, with its row in recordKinds().
enum class Record {
    query,
    view,
    rectangle,
    scroll,
    animation,
    indicator,
    element,
    event,
    counters,
    page,
    row,
    alert,
    sheet,
    allowance,
};
const RecordKind &recordKind(Record record);
// In the order of Record.
std::span<const RecordKind> recordKinds();

// Pushes an object's members as a record.
void pushRecord(lua_State *lua, Record kind, const Value &members);
// A list of them.
void pushRecords(lua_State *lua, Record kind, const Array &list);

// Gives the table on top of the stack the kind's behaviour.
void makeRecord(lua_State *lua, Record kind);

// Throws std::runtime_error for the name `field`, which is none of the kind's, and nothing otherwise.
void checkField(Record kind, const std::string &field);

} // namespace sim

// A call of a script on a phone or pane, told to the trace.
#pragma once

#include "Phone.hpp"

#include <optional>
#include <string>

namespace sim {

// Stands while the call runs, with its arguments on the stack from index 2 on. At its end, an error's too, it
// is a step of the trace when it has changed something; without a trace it does nothing.
class TracedCall {
public:
    TracedCall(lua_State *lua, Script &script, Phone &phone, const char *name);
    ~TracedCall();
    TracedCall(const TracedCall &) = delete;
    TracedCall &operator=(const TracedCall &) = delete;

private:
    lua_State *lua_;
    Trace *trace_;
    Phone &phone_;
    std::string call_;
    std::optional<TraceMoment> before_;
};

// The phone or pane was just opened by the function that runs: a step, too.
void traceOpening(lua_State *lua, Phone &phone);

} // namespace sim

// Values as the text of a script, exactly: what a script reads there is the value again.
#pragma once

#include "Runtime/Values/Value.hpp"

#include <string>
#include <string_view>

namespace sim {

// In one line. Throws ValueError for bytes and dates of a property list, which scripts cannot write down.
std::string luaText(const Value &value);

// phone:NAME(ARGUMENT, …) or, with one table, phone:NAME{…}; `object` for another than the phone.
std::string luaCall(std::string_view name, const Array &arguments, std::string_view object = "phone");

} // namespace sim

// Calls as the text of a script.
#pragma once

#include "Supervisor/Text/Readable.hpp"

#include <string>
#include <string_view>

namespace sim {

// phone:NAME(ARGUMENT, …) or, with one table, phone:NAME{…}; `object` for another than the phone. The
// arguments are written as luaText() does.
std::string luaCall(std::string_view name, const Array &arguments, std::string_view object = "phone");

// A coordinate as it reads best: whole points without a fraction.
Value coordinate(double value);
// "{10, 20.5}"
std::string pointText(double x, double y);

} // namespace sim

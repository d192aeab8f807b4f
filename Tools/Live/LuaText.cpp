#include "LuaText.hpp"

namespace sim {

std::string luaCall(std::string_view name, const Array &arguments, std::string_view object) {
    std::string call = std::string(object) + ":" + std::string(name);
    bool oneTable = arguments.size() == 1 && (arguments[0].isArray() || arguments[0].isObject());
    if (oneTable) return call + luaText(arguments[0]);
    std::string list;
    for (const auto &argument : arguments) list += (list.empty() ? "" : ", ") + luaText(argument);
    return call + "(" + list + ")";
}

Value coordinate(double value) {
    auto whole = static_cast<int64_t>(value);
    return static_cast<double>(whole) == value ? Value(whole) : Value(value);
}

std::string pointText(double x, double y) { return luaText(Array{coordinate(x), coordinate(y)}); }

} // namespace sim

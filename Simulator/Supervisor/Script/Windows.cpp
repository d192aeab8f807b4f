#include "Windows.hpp"

#include "Binding.hpp"
#include "Supervisor/Text/Suggest.hpp"

#include <algorithm>
#include <stdexcept>

namespace sim {

void checkWindow(const std::string &window) {
    static const std::vector<std::string> known = {"overlay", "statusbar", "home", "lock", "alert", "app"};
    if (!std::ranges::count(known, window))
        throw std::runtime_error("there is no window '" + window + "'" + suggestion(window, known));
}

Object windowArgument(lua_State *lua, int index) {
    if (lua_isnoneornil(lua, index)) return {};
    std::string window = text(lua, index, "the window");
    checkWindow(window);
    return {{"window", window}};
}

} // namespace sim

#include "CrashText.hpp"

#include "Runtime/MachO/File/Symbols.hpp"
#include "Runtime/Values/Symbolise.hpp"

#include <regex>

namespace sim {

std::string crashText(const std::string &report) {
    static const std::regex address("([^+])0x[0-9a-f]+");
    return std::regex_replace(symbolise(macho::nameFrames(report)), address, "$010x…");
}

std::string troublesOf(const Ending &ending, const std::string &who) {
    if (ending.clean()) return "";
    return who + " did not end well: " + ending.reason() + "\n" + ending.errorOutput +
           crashText(ending.crashReport);
}

} // namespace sim

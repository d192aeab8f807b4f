#include "FindingFile.hpp"

#include "Replay.hpp"
#include "Silence.hpp"
#include "Supervisor/Boot/Package.hpp"
#include "Supervisor/Script/Conversion.hpp"

#include <memory>
#include <sstream>

namespace sim {

namespace {

constexpr const char *kBoot = "local phone = boot";
constexpr const char *kEnd = "-- What a script can see of it:";

std::string commented(const std::string &text) {
    std::string result = "-- ";
    for (char letter : text) result += letter == '\n' ? std::string("\n--   ") : std::string(1, letter);
    return result + '\n';
}

// The value of a table as a script writes it.
Value tableFrom(const std::string &text) {
    std::unique_ptr<lua_State, decltype(&lua_close)> lua(luaL_newstate(), lua_close);
    if (luaL_dostring(lua.get(), ("return " + text).c_str()) != LUA_OK)
        throw std::runtime_error(lua_tostring(lua.get(), -1));
    return toValue(lua.get(), -1);
}

} // namespace

std::string findingScript(const DeviceSetup &setup, const Finding &finding, const std::string &origin) {
    std::string text;
    for (const auto &sentence : finding.broken) text += commented(sentence);
    text += commented(origin) + bootLine(finding.boot) + '\n';
    Silence silence;
    Replay replay(setup, finding.boot);
    for (const auto &line : finding.lines) {
        // A script stops at a call that is refused.
        bool taken = !replay.broken().empty() || replay.run(line);
        text += taken ? line + '\n' : "pcall(function() " + line + " end)\n";
    }
    return text + kEnd +
           "\nfor _, kind in ipairs{\"crash\", \"unrecognized\"} do\n"
           "  expect_eq(#phone:events(kind), 0, kind)\n"
           "end\n";
}

Finding readFinding(const std::filesystem::path &file) {
    std::istringstream text(readFile(file));
    Finding finding;
    bool booted = false;
    for (std::string line; std::getline(text, line) && line != kEnd;) {
        if (line.empty() || line.starts_with("--")) continue;
        if (!booted && !line.starts_with(kBoot)) break;
        if (booted) {
            finding.lines.push_back(line);
        } else {
            finding.boot = tableFrom(line.substr(std::string_view(kBoot).size()));
            booted = true;
        }
    }
    if (!booted) throw std::runtime_error(file.string() + " does not begin with \"" + kBoot + "{…}\"");
    return finding;
}

} // namespace sim

#include "MisspeltGlobal.hpp"

#include "Library.hpp"
#include "Phone.hpp"
#include "Supervisor/Text/Suggest.hpp"

#include <map>

namespace sim {

namespace {

// How a call is written, by its name. A global goes before a method of the same name.
std::map<std::string, std::string> calls() {
    std::map<std::string, std::string> result;
    for (const auto &family : globalFamilies())
        for (const auto &global : family.globals) result.emplace(global.name, global.name);
    for (const auto &family : methodFamilies())
        for (const auto &method : family.methods)
            result.emplace(method.name, std::string(family.ofPhone ? "phone:" : "pane:") + method.name);
    return result;
}

} // namespace

std::string misspeltGlobal(const std::string &error) {
    constexpr std::string_view kStart = "attempt to call a nil value (global '";
    size_t at = error.find(kStart);
    if (at == std::string::npos) return "";
    at += kStart.size();
    std::string name = error.substr(at, error.find('\'', at) - at);
    auto known = calls();
    std::vector<std::string> names;
    for (const auto &[word, call] : known) names.push_back(word);
    std::string meant = nearest(name, names);
    return meant.empty() ? "" : "; did you mean '" + known[meant] + "'?";
}

} // namespace sim

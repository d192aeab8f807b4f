#include "Settings.hpp"

#include <algorithm>

namespace sim {

namespace {

bool isYes(std::string_view text) {
    size_t start = text.find_first_not_of(" \t\n\r");
    if (start == text.npos) return false;
    text.remove_prefix(start);
    if (text[0] == '+' || text[0] == '-') text.remove_prefix(1);
    text.remove_prefix(std::min(text.find_first_not_of('0'), text.size()));
    return !text.empty() && std::string_view("YyTt123456789").find(text[0]) != std::string_view::npos;
}

} // namespace

bool isYes(const Value &value) {
    if (value.isBool()) return value.boolean();
    if (value.isNumber()) return value.number() != 0;
    return value.isString() && isYes(std::string_view(value.string()));
}

bool isOn(const Value &settings, std::string_view key) { return isYes(settings[key]); }

bool isHidden(const Value &settings, const std::string &application) {
    return isYes(settings[application]["hide_perapp"]);
}

bool hasListed(const Value &settings, const std::vector<std::string> &applications) {
    return std::ranges::any_of(
        applications, [&](const std::string &application) { return !isHidden(settings, application); });
}

} // namespace sim

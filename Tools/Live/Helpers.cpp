#include "Helpers.hpp"

#include "Supervisor/Text/Readable.hpp"

#include <algorithm>

namespace sim {

namespace {

constexpr const char *kItem =
    "function item(name) return phone:find{ window = \"overlay\", name = apps[name] or name } end";
constexpr const char *kPlace = "function at(view, dx, dy) local s = view.screen "
                               "return { s.x + s.w / 2 + dx, s.y + s.h / 2 + dy } end";

std::string table(const std::vector<std::pair<std::string, std::string>> &names) {
    Object members;
    for (const auto &[identifier, name] : names) members.emplace(name, identifier);
    return "apps = " + luaText(members);
}

} // namespace

Helpers::Helpers(const BootOptions &options) {
    for (const auto &application : options.applications)
        names_.emplace_back(application.identifier, application.name);
    std::vector<std::string> twice;
    for (const auto &[identifier, name] : names_)
        if (std::ranges::count(names_, name, [](const auto &entry) { return entry.second; }) > 1)
            twice.push_back(name);
    std::erase_if(names_, [&](const auto &entry) { return std::ranges::count(twice, entry.second) > 0; });
}

std::string Helpers::nameOf(const std::string &identifier) const {
    auto found = std::ranges::find(names_, identifier, [](const auto &entry) { return entry.first; });
    return found == names_.end() ? identifier : found->second;
}

std::string Helpers::statements() const { return table(names_) + "\n" + kItem + "\n" + kPlace; }

bool Helpers::use(const std::string &call) {
    bool news = !usesPlaces_ && call.find("at(") != call.npos;
    usesPlaces_ = usesPlaces_ || news;
    for (const auto &[identifier, name] : names_)
        if (call.find("item(" + luaText(name) + ")") != call.npos)
            news = used_.insert(identifier).second || news;
    return news;
}

std::vector<std::string> Helpers::lines() const {
    std::vector<std::string> lines;
    std::vector<std::pair<std::string, std::string>> names;
    std::ranges::copy_if(names_, std::back_inserter(names),
                         [&](const auto &entry) { return used_.contains(entry.first); });
    if (!names.empty()) {
        lines.push_back("local " + table(names));
        lines.push_back(std::string("local ") + kItem);
    }
    if (usesPlaces_) lines.push_back(std::string("local ") + kPlace);
    return lines;
}

} // namespace sim

#include "Wording.hpp"

#include "Runtime/Values/PropertyList.hpp"
#include "Supervisor/Boot/Package.hpp"

#include <algorithm>
#include <map>
#include <stdexcept>

namespace sim {

namespace {

constexpr const char *kFolder = "Library/Application Support/Pendix/Languages";
const std::string kEnglish = "en";

Object readTable(const std::string &language) {
    const auto file = findInstallation().stageRoot / kFolder / (language + ".plist");
    const auto bytes = readWholeFile(file.string());
    const auto table = bytes ? parsePropertyList(*bytes, nullptr) : std::nullopt;
    return table && table->isObject() ? table->object() : Object();
}

const Object &tableOf(const std::string &language) {
    static std::map<std::string, Object> tables;
    auto found = tables.find(language);
    if (found == tables.end()) found = tables.emplace(language, readTable(language)).first;
    return found->second;
}

} // namespace

const std::string &wording(const std::string &language, std::string_view key) {
    for (const std::string &one : {language, kEnglish}) {
        const Object &table = tableOf(one);
        auto found = table.find(std::string(key));
        if (found != table.end() && found->second.isString() && !found->second.string().empty())
            return found->second.string();
    }
    throw std::logic_error("there is no text '" + std::string(key) + "'");
}

bool isWording(const std::string &language, std::string_view text) {
    return std::ranges::any_of(tableOf(kEnglish),
                               [&](const auto &entry) { return wording(language, entry.first) == text; });
}

} // namespace sim

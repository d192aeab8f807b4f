#include "SettingList.hpp"

#include "Runtime/Values/Json.hpp"
#include "Supervisor/Boot/Package.hpp"

#include <algorithm>
#include <map>
#include <stdexcept>

namespace sim {

namespace {

Setting::Kind kindFrom(const std::string &word) {
    static const std::map<std::string, Setting::Kind> kinds = {
        {"toggle", Setting::Kind::toggle}, {"choice", Setting::Kind::choice},
        {"color", Setting::Kind::color},   {"code", Setting::Kind::code},
        {"record", Setting::Kind::record}, {"application toggle", Setting::Kind::perApplication}};
    auto found = kinds.find(word);
    if (found == kinds.end()) throw std::runtime_error("'" + word + "' is no kind of setting");
    return found->second;
}

std::vector<Setting> readList() {
    std::vector<Setting> list;
    const Value lines = parseJson(readFile(findInstallation().settings));
    for (const Value &line : lines.array()) {
        Setting setting{line["name"].string(), line["key"].string(), kindFrom(line["kind"].string()), {}};
        for (const Value &value : line["values"].array()) setting.values.push_back(value.string());
        list.push_back(std::move(setting));
    }
    return list;
}

const Setting *found(std::string Setting::*field, std::string_view text) {
    auto at = std::ranges::find(settingList(), text, field);
    return at == settingList().end() ? nullptr : &*at;
}

} // namespace

const std::vector<Setting> &settingList() {
    static const std::vector<Setting> list = readList();
    return list;
}

const Setting *settingOfKey(std::string_view key) { return found(&Setting::key, key); }

const std::string &keyNamed(std::string_view name) {
    const Setting *setting = found(&Setting::name, name);
    if (!setting) throw std::logic_error("the extension has no setting '" + std::string(name) + "'");
    return setting->key;
}

} // namespace sim

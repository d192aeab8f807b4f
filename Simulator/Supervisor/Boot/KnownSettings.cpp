#include "KnownSettings.hpp"

#include "Package.hpp"
#include "Runtime/Values/Json.hpp"
#include "Supervisor/Text/Suggest.hpp"

#include <algorithm>
#include <stdexcept>

namespace sim {

namespace {

KnownSetting readSetting(const Value &entry) {
    KnownSetting setting = {.key = entry["key"].string(),
                            .kind = entry["kind"].string(),
                            .absent = entry["absent"].string(),
                            .page = entry["page"].string(),
                            .label = entry["label"].string(),
                            .meaning = entry["meaning"].string()};
    for (const auto &value : entry["values"].array()) setting.values.push_back(value.string());
    return setting;
}

void addUnknown(std::vector<std::string> &result, const Object &values,
                const std::vector<std::string> &known) {
    for (const auto &[key, value] : values)
        if (!value.isNull() && !std::ranges::count(known, key))
            result.push_back("the extension has no setting '" + key + "'" + suggestion(key, known));
}

} // namespace

std::vector<KnownSetting> readKnownSettings(const std::filesystem::path &file) {
    std::vector<KnownSetting> settings;
    if (!std::filesystem::exists(file)) return settings;
    std::string text = readFile(file);
    try {
        for (Value list = parseJson(text); const auto &entry : list.array())
            settings.push_back(readSetting(entry));
    } catch (const ValueError &error) {
        throw std::runtime_error(file.string() + ": " + error.what());
    }
    return settings;
}

std::vector<std::string> unknownSettings(const Object &values, const std::vector<KnownSetting> &known) {
    std::vector<std::string> own, ofApplications, result;
    for (const auto &setting : known) (setting.ofApplication() ? ofApplications : own).push_back(setting.key);
    if (known.empty()) return result;
    Object plain;
    for (const auto &[key, value] : values) {
        bool application = value.isObject() && !std::ranges::count(own, key);
        if (!application) {
            plain.emplace(key, value);
        } else {
            addUnknown(result, value.object(), ofApplications);
        }
    }
    addUnknown(result, plain, own);
    return result;
}

} // namespace sim

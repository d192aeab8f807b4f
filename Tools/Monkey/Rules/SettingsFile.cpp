// The settings file changes by what was done to it, by the settings pages, and by the note about the finger's
// sensor that the launch leaves; by nothing else, and never in another key.
#include "Rules.hpp"
#include "Tools/Monkey/SettingList.hpp"

#include <algorithm>

namespace sim {

namespace {

// The keys whose values differ.
std::set<std::string> changedKeys(const Value &before, const Value &after) {
    std::set<std::string> keys;
    auto compare = [&](const Value &one, const Value &other) {
        if (!one.isObject()) return;
        for (const auto &[key, value] : one.object())
            if (other[key] != value) keys.insert(key);
    };
    compare(before, after);
    compare(after, before);
    return keys;
}

// What the rows of the pane store, the one of a label that no text says included.
bool isByPages(const std::string &key) {
    const Setting *setting = settingOfKey(key);
    // Whatever an application is called, its name has a dot.
    return setting ? setting->kind != Setting::Kind::record
                   : key == "(null)" || key.find('.') != std::string::npos;
}

bool mayChange(const Moment &moment, const std::string &key) {
    if (key == keyNamed("hasSensor") && moment.restarted()) return true;
    if (moment.pane && isByPages(key)) return true;
    bool told = moment.call.find(":set") != std::string::npos && moment.call.find(key) != std::string::npos;
    return told || moment.call.find(":delete_settings") != std::string::npos ||
           moment.call.find(":settings_text") != std::string::npos;
}

} // namespace

void checkSettingsFile(const Moment &moment, Memory &memory, Findings &findings) {
    for (const auto &key : changedKeys(moment.settingsBefore, moment.settings))
        if (!mayChange(moment, key)) findings.push_back("the key '" + key + "' has changed");
    // The home screen writes once, at its launch.
    int64_t most = moment.restarted() ? 1 : memory.settingsWrites;
    if (moment.now.settingsWrites > most)
        findings.push_back("the home screen has written the file " +
                           std::to_string(moment.now.settingsWrites) + " times");
    memory.settingsWrites = moment.now.settingsWrites;
    const Value &sensor = moment.settings[keyNamed("hasSensor")];
    if (moment.restarted() && sensor != Value("0") && sensor != Value("1"))
        findings.push_back("the launch has left no note about the sensor");
}

} // namespace sim

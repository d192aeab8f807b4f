// The extension's settings, as the build lists them: no key is spelled anywhere else in the tools.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace sim {

struct Setting {
    enum class Kind { toggle, choice, color, code, record, perApplication };

    std::string name; // in the extension's sources
    std::string key;  // in the settings file, or in an application's own dictionary there
    Kind kind;
    std::vector<std::string> values; // of a choice or a record
};

// In the order of the sources; read once, from the stage beside the running program. Throws
// std::runtime_error when it has no such list.
const std::vector<Setting> &settingList();

// nullptr for a key of no setting.
const Setting *settingOfKey(std::string_view key);

// The key of the setting with that name. Throws std::logic_error for an unknown name.
const std::string &keyNamed(std::string_view name);

} // namespace sim

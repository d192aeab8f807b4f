// The extension's settings as the build lists them: all that is known of them here.
#pragma once

#include "Runtime/Values/Value.hpp"

#include <filesystem>
#include <string>
#include <vector>

namespace sim {

struct KnownSetting {
    std::string key, kind, absent, page, label, meaning;
    std::vector<std::string> values;

    // Whether it stands in the dictionary of an application rather than in the file itself.
    bool ofApplication() const { return kind.starts_with("application"); }
};

// What settings.json lists; nothing when there is no such file. Throws std::runtime_error when it is broken.
std::vector<KnownSetting> readKnownSettings(const std::filesystem::path &file);

// A text for each key among the values that no setting has, with the nearest that one has. Nothing when no
// setting is known at all. What is no key of the file itself but holds a dictionary counts as an application.
std::vector<std::string> unknownSettings(const Object &values, const std::vector<KnownSetting> &known);

} // namespace sim

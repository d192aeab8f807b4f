// All that a script may say and be told, collected from the tables by which the program works.
#pragma once

#include "Supervisor/Boot/Package.hpp"

#include <string>
#include <utility>
#include <vector>

namespace sim {

struct ReferenceEntry {
    std::string name;                                      // "badge"
    std::string heading;                                   // "phone:badge(id, [n])"
    std::string text;                                      // what it does or is
    std::vector<std::pair<std::string, std::string>> rows; // parameters, fields, options
};

struct ReferenceSection {
    std::string name; // what `help` finds it by: "events"
    std::string title;
    std::string text;
    std::vector<ReferenceEntry> entries;
};

// Throws std::runtime_error when the list of the extension's settings is broken.
std::vector<ReferenceSection> makeReference(const Installation &installation);

} // namespace sim

// `pendix-sim help`: the reference, from the tables by which the program works.
#pragma once

#include "Supervisor/Boot/Package.hpp"

#include <functional>
#include <string>
#include <vector>

namespace sim {

struct HelpRequest {
    std::vector<std::string> words; // of the name that is asked for; none: an overview
    bool page = false;              // all of it, as docs/reference.md has it
};

// What a command takes, by its name; empty for what is no command.
using CommandHelp = std::function<std::string(const std::string &)>;

// Throws std::runtime_error with the nearest name when there is nothing of that name.
std::string help(const HelpRequest &request, const Installation &installation, const CommandHelp &commandHelp,
                 const std::vector<std::string> &commands);

} // namespace sim

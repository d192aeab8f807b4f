// The small functions with which a recording names what was touched: a script that uses one begins with it.
#pragma once

#include "Supervisor/Boot/BootOptions.hpp"

#include <set>
#include <string>
#include <vector>

namespace sim {

class Helpers {
public:
    // Those of devices that are booted with these options.
    explicit Helpers(const BootOptions &options);

    // What an application is called: its name when no other one has it, else its identifier.
    std::string nameOf(const std::string &identifier) const;
    // All of them, as global ones.
    std::string statements() const;
    // Notes what a call uses. True when that was something new.
    bool use(const std::string &call);
    // What the calls that were noted need, as lines of a script.
    std::vector<std::string> lines() const;

private:
    std::vector<std::pair<std::string, std::string>> names_; // of applications: identifier, name
    std::set<std::string> used_;                             // identifiers
    bool usesPlaces_ = false;
};

} // namespace sim

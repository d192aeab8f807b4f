// The options of `boot` and of the tables in it.
#pragma once

#include "Supervisor/Reference/About.hpp"

namespace sim {

struct OptionTable {
    const char *name; // "boot", or the option whose table it is
    About about;
    std::vector<Described> options;
};

const OptionTable &bootOptionTable();
const OptionTable &applicationOptionTable();
const OptionTable &colorBadgeOptionTable();
const OptionTable &failingWriteOptionTable();

} // namespace sim

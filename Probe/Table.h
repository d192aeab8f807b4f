// What is asked about the system's classes. The table itself is made by make_table.py from the platform's
// headers and from the agreed list of hooks, so that nothing that the extension can name goes unasked.
#pragma once

#include <span>

namespace probe {

// A method with its mark, "-frame" or "+new", or a variable of an instance.
struct Member {
    const char *className;
    const char *name;
};

std::span<const char *const> classes();
std::span<const Member> methods();
std::span<const Member> variables();

} // namespace probe

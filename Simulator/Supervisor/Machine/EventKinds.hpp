// The kinds of events that a device records.
#pragma once

#include "Runtime/Values/Value.hpp"
#include "Supervisor/Reference/About.hpp"

#include <span>
#include <string>
#include <vector>

namespace sim {

struct EventKind {
    const char *name;
    About about;
    std::vector<Described> fields; // beside `t` and `kind`
};

std::span<const EventKind> eventKinds();
// Their names, and the fields that any of them has, for telling scripts what they mistyped.
const std::vector<std::string> &eventKindNames();
std::vector<Described> allEventFields();

// Throws std::logic_error for an event whose kind or field has no row in the table.
void checkEvent(const Value &event);

} // namespace sim

// The reference as people read it.
#pragma once

#include "Reference.hpp"

#include <optional>

namespace sim {

// A line for each part of the reference, with the names in it.
std::string referenceOverview(const std::vector<ReferenceSection> &reference);

// All that goes by that name, whatever its case; a call may be written as "phone:badge". Nothing when there
// is nothing of that name.
std::optional<std::string> helpText(const std::vector<ReferenceSection> &reference, const std::string &name);

// Every name that helpText() knows, for telling what was mistyped.
std::vector<std::string> helpNames(const std::vector<ReferenceSection> &reference);

// The whole as a page.
std::string referencePage(const std::vector<ReferenceSection> &reference);

} // namespace sim

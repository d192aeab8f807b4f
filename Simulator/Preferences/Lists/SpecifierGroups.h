// The groups that a flat list of specifiers falls into: a group specifier and the rows up to the next one.
#pragma once

#include <Preferences/PSSpecifier.h>

#include <optional>
#include <vector>

namespace sim {

struct SpecifierGroup {
    PSSpecifier *group = nil; // nil for rows before the first group; not retained
    size_t first = 0;         // index of the first row in the list
    size_t rows = 0;
};

struct RowPosition {
    size_t group = 0;
    std::optional<size_t> row; // nothing: the group itself
};

std::vector<SpecifierGroup> groupsOf(NSArray *specifiers);
// Nothing for an index past the end.
std::optional<RowPosition> positionOf(const std::vector<SpecifierGroup> &groups, size_t index);

} // namespace sim

#include "SpecifierGroups.h"

#include "Preferences/Specifiers/SpecifierState.h"

namespace sim {

std::vector<SpecifierGroup> groupsOf(NSArray *specifiers) {
    std::vector<SpecifierGroup> result;
    size_t index = 0;
    for (PSSpecifier *specifier in specifiers) {
        if ([specifier isGroup]) {
            result.push_back({specifier, index + 1, 0});
        } else {
            if (result.empty()) result.push_back({nil, 0, 0});
            ++result.back().rows;
        }
        ++index;
    }
    return result;
}

std::optional<RowPosition> positionOf(const std::vector<SpecifierGroup> &groups, size_t index) {
    for (size_t i = 0; i < groups.size(); ++i) {
        const auto &group = groups[i];
        if (group.group && index + 1 == group.first) return RowPosition{i, std::nullopt};
        if (index >= group.first && index < group.first + group.rows)
            return RowPosition{i, index - group.first};
    }
    return std::nullopt;
}

} // namespace sim

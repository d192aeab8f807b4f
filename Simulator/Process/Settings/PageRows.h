// The rows of a page as scripts know them.
#pragma once

#include "Runtime/Values/Value.hpp"

#include <Preferences/Preferences.h>

#include <string>
#include <vector>

namespace sim {

struct PageRow {
    PSSpecifier *specifier = nil; // not retained
    std::string label, kind;
    NSIndexPath *path = nil; // autoreleased
};

// nil unless the page in front is a list.
PSListController *frontList();
// In order. A list of choices has rows of the kind "button".
std::vector<PageRow> pageRows(PSListController *list);
// {"label", "kind", "value", "footer", "choices", "icon"}; absent what the row does not have.
Value describeRow(PSListController *list, const PageRow &row);

} // namespace sim

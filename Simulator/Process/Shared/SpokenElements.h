// Accessible elements as plain values.
#pragma once

#include "Runtime/Values/Value.hpp"

#import <Foundation/Foundation.h>

#include <vector>

namespace sim {

// {"elements": [element], "matches", "views"}: each with the fields that scripts know, its "number" and, as
// "held", whether a view holds it; those views, one for each such element, as snapshot() gives them.
Value spokenElements(const std::vector<id> &elements);

} // namespace sim

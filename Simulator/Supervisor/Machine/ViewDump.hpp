// The view tree as indented text.
#pragma once

#include "Runtime/Values/Value.hpp"

#include <string>

namespace sim {

// A line a view, without addresses: class, what tells it from others (tag, name, text …), frame, and what is
// not as it is by default. `views` is the answer to a question for views: {"matches": [number], "views":
// [view]}.
std::string viewDump(const Value &views);

// One view in a few words: class, tag, name, text.
std::string viewTitle(const Value &view);

} // namespace sim

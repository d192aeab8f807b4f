// The view tree as indented text.
#pragma once

#include "Runtime/Values/Value.hpp"

#include <cstddef>
#include <string>
#include <vector>

namespace sim {

// A view as a line, without addresses: class, what tells it from others (tag, name, text …), frame, and what
// is not as it is by default.
struct ViewLine {
    size_t depth; // 0 for those that were asked for
    std::string text;
    const Value *view; // in the answer
};

// `views` is the answer to a question for views: {"matches": [number], "views": [view]}. It has to outlive
// what is returned.
std::vector<ViewLine> viewLines(const Value &views);

// The same as one text, two spaces a step of depth.
std::string viewDump(const Value &views);

// One view in a few words: class, tag, name, text.
std::string viewTitle(const Value &view);

} // namespace sim

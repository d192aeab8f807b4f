// Text in lines of a terminal.
#pragma once

#include <string>
#include <string_view>

namespace sim {

// The words of the text in lines of `width` columns at most; every line but the first starts with `indent`
// blanks, and the first is taken to stand at that column already.
std::string wrapped(std::string_view text, size_t width, size_t indent);

} // namespace sim

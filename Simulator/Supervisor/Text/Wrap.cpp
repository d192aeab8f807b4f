#include "Wrap.hpp"

#include <algorithm>

namespace sim {

namespace {

// Characters, not bytes.
size_t columns(std::string_view text) {
    return static_cast<size_t>(std::ranges::count_if(
        text, [](char byte) { return (static_cast<unsigned char>(byte) & 0xc0) != 0x80; }));
}

} // namespace

std::string wrapped(std::string_view text, size_t width, size_t indent) {
    std::string result;
    size_t column = indent;
    while (!text.empty()) {
        size_t end = std::min(text.find(' '), text.size());
        std::string_view word = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        bool first = column == indent;
        if (!first && column + 1 + columns(word) > width) {
            result += "\n" + std::string(indent, ' ');
            column = indent;
            first = true;
        }
        if (!first) result += ' ';
        result += word;
        column += columns(word) + (first ? 0 : 1);
    }
    return result;
}

} // namespace sim

#include "PropertyListText.hpp"

#include "PropertyListReader.hpp"

#include <algorithm>

namespace sim {

namespace {

constexpr char32_t kReplacement = 0xfffd;

bool isSurrogate(char32_t code) { return code >= 0xd800 && code < 0xe000; }
bool isLeading(char32_t unit) { return unit >= 0xd800 && unit < 0xdc00; }
bool isTrailing(char32_t unit) { return unit >= 0xdc00 && unit < 0xe000; }

} // namespace

void TextCursor::skipSpace() { takeWhile(isSpace); }

bool TextCursor::take(std::string_view literal) {
    if (!text_.substr(at_).starts_with(literal)) return false;
    at_ += literal.size();
    return true;
}

std::string_view TextCursor::takeThrough(std::string_view end, const char *what) {
    size_t found = text_.find(end, at_);
    if (found == std::string_view::npos) fail(std::string(what) + " without an end");
    std::string_view content = text_.substr(at_, found - at_);
    at_ = found + end.size();
    return content;
}

bool TextCursor::takeSpan(std::string_view begin, std::string_view end, const char *what) {
    if (!take(begin)) return false;
    takeThrough(end, what);
    return true;
}

void TextCursor::fail(const std::string &what) const {
    auto line = 1 + std::count(text_.begin(), text_.begin() + static_cast<ptrdiff_t>(at_), '\n');
    throw PropertyListError("line " + std::to_string(line) + ": " + what);
}

bool isSpace(char character) { return character == ' ' || (character >= '\t' && character <= '\r'); }

int hexadecimalDigit(char character) {
    if (character >= '0' && character <= '9') return character - '0';
    if (character >= 'a' && character <= 'f') return character - 'a' + 10;
    if (character >= 'A' && character <= 'F') return character - 'A' + 10;
    return -1;
}

void appendUtf8(std::string &text, char32_t code) {
    if (code > 0x10ffff || isSurrogate(code)) code = kReplacement;
    auto put = [&](char32_t byte) { text.push_back(static_cast<char>(byte)); };
    auto putTail = [&](int shift) { put(0x80 | ((code >> shift) & 0x3f)); };
    if (code < 0x80) {
        put(code);
    } else if (code < 0x800) {
        put(0xc0 | code >> 6);
        putTail(0);
    } else if (code < 0x10000) {
        put(0xe0 | code >> 12);
        putTail(6);
        putTail(0);
    } else {
        put(0xf0 | code >> 18);
        putTail(12);
        putTail(6);
        putTail(0);
    }
}

bool isUtf8(std::string_view bytes) {
    for (size_t at = 0; at < bytes.size();) {
        auto lead = static_cast<unsigned char>(bytes[at++]);
        if (lead < 0x80) continue;
        int tail = lead >= 0xf0 ? 3 : lead >= 0xe0 ? 2 : 1;
        if (lead < 0xc2 || lead > 0xf4 || bytes.size() - at < static_cast<size_t>(tail)) return false;
        char32_t code = lead & (0x3f >> tail);
        for (int i = 0; i < tail; ++i) {
            auto byte = static_cast<unsigned char>(bytes[at++]);
            if ((byte & 0xc0) != 0x80) return false;
            code = code << 6 | (byte & 0x3f);
        }
        constexpr char32_t kSmallest[] = {0, 0x80, 0x800, 0x10000};
        if (code < kSmallest[tail] || code > 0x10ffff || isSurrogate(code)) return false;
    }
    return true;
}

std::string utf8FromUtf16(std::string_view bytes, bool bigEndian) {
    auto unit = [&](size_t index) -> char32_t {
        auto first = static_cast<unsigned char>(bytes[2 * index]);
        auto second = static_cast<unsigned char>(bytes[2 * index + 1]);
        return bigEndian ? first << 8 | second : second << 8 | first;
    };
    std::string text;
    size_t count = bytes.size() / 2;
    for (size_t i = 0; i < count; ++i) {
        char32_t code = unit(i);
        if (isLeading(code) && i + 1 < count && isTrailing(unit(i + 1)))
            code = 0x10000 + ((code - 0xd800) << 10) + (unit(++i) - 0xdc00);
        appendUtf8(text, code);
    }
    if (bytes.size() % 2) appendUtf8(text, kReplacement);
    return text;
}

} // namespace sim

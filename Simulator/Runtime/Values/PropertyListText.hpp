// A cursor in the text of a property list, and the encodings that such texts come in.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace sim {

class TextCursor {
public:
    explicit TextCursor(std::string_view text) : text_(text) {}

    bool atEnd() const { return at_ == text_.size(); }
    // NUL past the end.
    char peek(size_t ahead = 0) const { return at_ + ahead < text_.size() ? text_[at_ + ahead] : '\0'; }
    char next() { return atEnd() ? '\0' : text_[at_++]; }
    void skipSpace();
    // Goes past space and what `skip` goes past, as often as that finds something.
    template <typename Skip>
    void skipSpaceAnd(Skip skip) {
        do skipSpace();
        while (skip());
    }
    // Goes past `literal` when it stands here.
    bool take(std::string_view literal);
    // Goes past the next `end` and returns what stood before it; `what` names the thing for the error when
    // there is none.
    std::string_view takeThrough(std::string_view end, const char *what);
    // Goes past `begin` and the next `end` when `begin` stands here.
    bool takeSpan(std::string_view begin, std::string_view end, const char *what);
    template <typename Predicate>
    std::string_view takeWhile(Predicate belongs) {
        size_t from = at_;
        while (at_ < text_.size() && belongs(text_[at_])) ++at_;
        return text_.substr(from, at_ - from);
    }

    size_t position() const { return at_; }
    void goTo(size_t position) { at_ = position; }

    // Throws PropertyListError with the line of this place.
    [[noreturn]] void fail(const std::string &what) const;

private:
    std::string_view text_;
    size_t at_ = 0;
};

bool isSpace(char character);
// 0 to 15, or -1.
int hexadecimalDigit(char character);
// A code that is no character becomes U+FFFD.
void appendUtf8(std::string &text, char32_t code);
bool isUtf8(std::string_view bytes);
// Surrogates without a partner become U+FFFD, as does half a unit at the end.
std::string utf8FromUtf16(std::string_view bytes, bool bigEndian);

} // namespace sim

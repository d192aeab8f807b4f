// The old-style text form, and the key-value lines of language tables, which are such a dictionary without
// braces.
#include "PropertyListReader.hpp"
#include "PropertyListText.hpp"

#include <string>

namespace sim {

namespace {

bool isUnquoted(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
           c == '$' || c == '/' || c == ':' || c == '.' || c == '-';
}

class OldStyleReader {
public:
    OldStyleReader(std::string_view text, PropertyListBuilder &builder) : cursor_(text), builder_(builder) {}

    void readDocument() {
        skipRemarks();
        size_t begin = cursor_.position();
        bool lines = cursor_.atEnd();
        if (!lines && startsText()) {
            // Text alone is a value; text with anything behind it is the first key of a dictionary without
            // braces.
            std::string text = readText();
            skipRemarks();
            if (cursor_.atEnd()) return builder_.string(text);
            cursor_.goTo(begin);
            lines = true;
        }
        if (lines) {
            builder_.beginDictionary();
            readMembers();
            builder_.endDictionary();
        } else {
            readValue();
        }
        skipRemarks();
        if (!cursor_.atEnd()) cursor_.fail("something follows the value");
    }

private:
    void skipRemarks() {
        cursor_.skipSpaceAnd(
            [this] { return takeLineComment() || cursor_.takeSpan("/*", "*/", "a comment"); });
    }

    bool takeLineComment() {
        if (!cursor_.take("//")) return false;
        cursor_.takeWhile([](char c) { return c != '\n' && c != '\r'; });
        return true;
    }

    bool startsText() const {
        return cursor_.peek() == '"' || cursor_.peek() == '\'' || isUnquoted(cursor_.peek());
    }

    void readValue() {
        skipRemarks();
        if (cursor_.take("{")) {
            enter();
            builder_.beginDictionary();
            readMembers();
            if (!cursor_.take("}")) cursor_.fail("expected '}'");
            builder_.endDictionary();
            --depth_;
        } else if (cursor_.take("(")) {
            readArray();
        } else if (cursor_.take("<")) {
            readData();
        } else {
            builder_.string(readText());
        }
    }

    void enter() {
        if (++depth_ > kDeepestPropertyList) cursor_.fail("nested too deeply");
    }

    void readMembers() {
        for (skipRemarks(); startsText(); skipRemarks()) {
            std::string key = readText();
            builder_.key(key);
            skipRemarks();
            if (cursor_.take("=")) {
                readValue();
                skipRemarks();
            } else {
                builder_.string(key); // "key;" stands for "key = key;"
            }
            if (!cursor_.take(";")) cursor_.fail("expected ';'");
        }
    }

    void readArray() {
        enter();
        builder_.beginArray();
        for (skipRemarks(); !cursor_.take(")"); skipRemarks()) {
            readValue();
            skipRemarks();
            if (!cursor_.take(",") && cursor_.peek() != ')') cursor_.fail("expected ',' or ')'");
        }
        builder_.endArray();
        --depth_;
    }

    void readData() {
        std::string bytes;
        int high = -1;
        for (cursor_.skipSpace(); !cursor_.take(">"); cursor_.skipSpace()) {
            int digit = hexadecimalDigit(cursor_.peek());
            if (digit < 0) cursor_.fail("expected a hexadecimal digit or '>'");
            cursor_.next();
            if (high >= 0) bytes.push_back(static_cast<char>(high << 4 | digit));
            high = high < 0 ? digit : -1;
        }
        if (high >= 0) cursor_.fail("half a byte");
        builder_.data(bytes);
    }

    std::string readText() {
        for (const char *quote : {"\"", "'"})
            if (cursor_.take(quote)) return readQuoted(*quote);
        std::string_view text = cursor_.takeWhile(isUnquoted);
        if (text.empty()) cursor_.fail(cursor_.atEnd() ? "the text ends too early" : "expected a value");
        return std::string(text);
    }

    std::string readQuoted(char quote) {
        std::string text;
        for (;;) {
            text += cursor_.takeWhile([&](char c) { return c != quote && c != '\\'; });
            if (cursor_.atEnd()) cursor_.fail("a text without an end");
            if (cursor_.next() == quote) return text;
            readEscape(text);
        }
    }

    void readEscape(std::string &text) {
        if (cursor_.atEnd()) cursor_.fail("a text without an end");
        if (cursor_.take("U") || cursor_.take("u")) return readCode(text);
        if (char digit = cursor_.peek(); digit >= '0' && digit <= '7') return readOctal(text);
        constexpr std::string_view kNames = "abfnrtv", kCharacters = "\a\b\f\n\r\t\v";
        char character = cursor_.next();
        size_t index = kNames.find(character);
        text.push_back(index == std::string_view::npos ? character : kCharacters[index]);
    }

    // Two codes in a row may be the halves of one character.
    void readCode(std::string &text) {
        char32_t code = readUnit();
        if (code >= 0xd800 && code < 0xdc00) {
            size_t before = cursor_.position();
            char32_t second = cursor_.take("\\U") || cursor_.take("\\u") ? readUnit() : 0;
            if (second >= 0xdc00 && second < 0xe000) {
                code = 0x10000 + ((code - 0xd800) << 10) + (second - 0xdc00);
            } else {
                cursor_.goTo(before);
            }
        }
        appendUtf8(text, code);
    }

    char32_t readUnit() {
        char32_t unit = 0;
        int digits = 0;
        for (; digits < 4 && hexadecimalDigit(cursor_.peek()) >= 0; ++digits)
            unit = unit << 4 | static_cast<char32_t>(hexadecimalDigit(cursor_.next()));
        if (digits == 0) cursor_.fail("an escape without digits");
        return unit;
    }

    void readOctal(std::string &text) {
        char32_t code = 0;
        for (int digits = 0; digits < 3 && cursor_.peek() >= '0' && cursor_.peek() <= '7'; ++digits)
            code = code << 3 | static_cast<char32_t>(cursor_.next() - '0');
        // Higher codes are of an encoding that no file of this device uses.
        if (code > 0x7f) cursor_.fail("an octal escape above 177");
        appendUtf8(text, code);
    }

    TextCursor cursor_;
    PropertyListBuilder &builder_;
    int depth_ = 0;
};

} // namespace

void readOldStylePropertyList(std::string_view text, PropertyListBuilder &builder) {
    OldStyleReader(text, builder).readDocument();
}

} // namespace sim

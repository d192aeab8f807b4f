// The XML form: the platform's small dialect, not XML at large.
#include "PropertyListReader.hpp"
#include "PropertyListScalars.hpp"
#include "PropertyListText.hpp"

#include <algorithm>
#include <charconv>
#include <limits>

namespace sim {

namespace {

constexpr std::string_view kElements[] = {"plist", "dict", "array", "key",  "string", "integer",
                                          "real",  "true", "false", "date", "data"};

bool isNameCharacter(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9');
}

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && isSpace(text.front())) text.remove_prefix(1);
    while (!text.empty() && isSpace(text.back())) text.remove_suffix(1);
    return text;
}

struct Tag {
    std::string_view name;
    bool closing = false, empty = false;
};

class XmlReader {
public:
    XmlReader(std::string_view text, PropertyListBuilder &builder) : cursor_(text), builder_(builder) {}

    void readDocument() {
        Tag root = nextTag();
        if (root.name == "plist" && !root.closing && !root.empty) {
            readValue(nextTag());
            expectClosing("plist");
        } else {
            readValue(root);
        }
        skipRemarks();
        if (!cursor_.atEnd()) cursor_.fail("something follows the value");
    }

private:
    void skipRemarks() {
        cursor_.skipSpaceAnd([this] {
            return cursor_.takeSpan("<!--", "-->", "a comment") ||
                   cursor_.takeSpan("<?", "?>", "an instruction") || takeDocumentType();
        });
    }

    bool takeDocumentType() {
        if (!cursor_.take("<!DOCTYPE")) return false;
        cursor_.takeWhile([](char c) { return c != '>' && c != '['; });
        if (cursor_.take("[")) cursor_.takeThrough("]", "a document type");
        cursor_.takeThrough(">", "a document type");
        return true;
    }

    Tag nextTag() {
        skipRemarks();
        if (!cursor_.take("<"))
            cursor_.fail(cursor_.atEnd() ? "the text ends too early" : "expected an element");
        Tag tag;
        tag.closing = cursor_.take("/");
        tag.name = cursor_.takeWhile(isNameCharacter);
        std::string_view rest = cursor_.takeThrough(">", "an element's tag");
        tag.empty = rest.ends_with('/');
        if (tag.empty) rest.remove_suffix(1);
        if (tag.name != "plist" && !trimmed(rest).empty()) cursor_.fail("unknown element");
        return tag;
    }

    void expectClosing(std::string_view name) {
        Tag tag = nextTag();
        if (!tag.closing || tag.name != name) cursor_.fail("expected </" + std::string(name) + ">");
    }

    void readValue(const Tag &tag) {
        if (tag.closing) cursor_.fail("a value is missing before </" + std::string(tag.name) + ">");
        if (tag.name == "dict") {
            readDictionary(tag);
        } else if (tag.name == "array") {
            readArray(tag);
        } else if (tag.name == "string") {
            builder_.string(content(tag));
        } else if (tag.name == "integer") {
            readInteger(trimmed(content(tag)));
        } else if (tag.name == "real") {
            readReal(trimmed(content(tag)));
        } else if (tag.name == "true" || tag.name == "false") {
            if (!content(tag).empty()) cursor_.fail("a boolean with content");
            builder_.boolean(tag.name == "true");
        } else if (tag.name == "data") {
            auto bytes = decodeBase64(content(tag));
            if (!bytes) cursor_.fail("not base64");
            builder_.data(*bytes);
        } else if (tag.name == "date") {
            auto date = parseDate(trimmed(content(tag)));
            if (!date) cursor_.fail("not a date");
            builder_.date(*date);
        } else {
            cursor_.fail("unknown element <" + std::string(tag.name) + ">");
        }
    }

    void enter() {
        if (++depth_ > kDeepestPropertyList) cursor_.fail("nested too deeply");
    }

    void readDictionary(const Tag &opening) {
        enter();
        builder_.beginDictionary();
        while (!opening.empty) {
            Tag tag = nextTag();
            if (tag.closing && tag.name == "dict") break;
            if (tag.closing || tag.name != "key") cursor_.fail("expected a key");
            builder_.key(content(tag));
            readValue(nextTag());
        }
        builder_.endDictionary();
        --depth_;
    }

    void readArray(const Tag &opening) {
        enter();
        builder_.beginArray();
        while (!opening.empty) {
            Tag tag = nextTag();
            if (tag.closing && tag.name == "array") break;
            readValue(tag);
        }
        builder_.endArray();
        --depth_;
    }

    // The text up to the element's end, as it stands when nothing in it is escaped.
    std::string_view content(const Tag &opening) {
        if (opening.empty) return {};
        auto isPlain = [](char c) { return c != '<' && c != '&'; };
        std::string_view plain = cursor_.takeWhile(isPlain);
        if (takeEnd(opening.name)) return plain;
        text_ = plain;
        while (!takeEnd(opening.name)) {
            if (cursor_.take("<![CDATA[")) {
                text_ += cursor_.takeThrough("]]>", "a CDATA section");
            } else if (cursor_.take("&")) {
                readEntity();
            } else {
                cursor_.fail("<" + std::string(opening.name) + "> does not end");
            }
            text_ += cursor_.takeWhile(isPlain);
        }
        return text_;
    }

    bool takeEnd(std::string_view name) {
        size_t before = cursor_.position();
        if (cursor_.take("</") && cursor_.take(name)) {
            cursor_.skipSpace();
            if (cursor_.take(">")) return true;
        }
        cursor_.goTo(before);
        return false;
    }

    void readEntity() {
        std::string_view name = cursor_.takeWhile([](char c) { return isNameCharacter(c) || c == '#'; });
        if (!cursor_.take(";")) cursor_.fail("an entity without an end");
        constexpr struct {
            std::string_view name;
            char character;
        } kEntities[] = {{"lt", '<'}, {"gt", '>'}, {"amp", '&'}, {"quot", '"'}, {"apos", '\''}};
        for (const auto &entity : kEntities)
            if (name == entity.name) return text_.push_back(entity.character);
        bool hexadecimal = name.starts_with("#x");
        if (!name.starts_with('#')) cursor_.fail("unknown entity");
        name.remove_prefix(hexadecimal ? 2 : 1);
        uint32_t code = 0;
        auto end = std::from_chars(name.data(), name.data() + name.size(), code, hexadecimal ? 16 : 10);
        if (name.empty() || end.ec != std::errc() || end.ptr != name.data() + name.size())
            cursor_.fail("unknown entity");
        appendUtf8(text_, code);
    }

    void readInteger(std::string_view text) {
        bool negative = text.starts_with('-');
        if (negative || text.starts_with('+')) text.remove_prefix(1);
        bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
        if (hexadecimal) text.remove_prefix(2);
        uint64_t number = 0;
        auto end = std::from_chars(text.data(), text.data() + text.size(), number, hexadecimal ? 16 : 10);
        constexpr uint64_t kLargest = std::numeric_limits<int64_t>::max();
        if (text.empty() || end.ec != std::errc() || end.ptr != text.data() + text.size() ||
            number > kLargest + negative)
            cursor_.fail("not an integer");
        builder_.integer(static_cast<int64_t>(negative ? -number : number));
    }

    // Takes "inf", "infinity" and "nan" in any case as well.
    void readReal(std::string_view text) {
        if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
        double number = 0;
        auto end = std::from_chars(text.data(), text.data() + text.size(), number);
        if (text.empty() || end.ec != std::errc() || end.ptr != text.data() + text.size())
            cursor_.fail("not a real number");
        builder_.real(number);
    }

    TextCursor cursor_;
    PropertyListBuilder &builder_;
    std::string text_;
    int depth_ = 0;
};

} // namespace

bool looksLikeXmlPropertyList(std::string_view text) {
    text = trimmed(text);
    if (text.starts_with("<?") || text.starts_with("<!")) return true;
    // An old-style list of nothing but data begins with '<' as well.
    return text.starts_with('<') && std::any_of(std::begin(kElements), std::end(kElements),
                                                [&](auto name) { return text.substr(1).starts_with(name); });
}

void readXmlPropertyList(std::string_view text, PropertyListBuilder &builder) {
    XmlReader(text, builder).readDocument();
}

} // namespace sim

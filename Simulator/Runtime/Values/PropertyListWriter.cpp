#include "PropertyList.hpp"
#include "PropertyListScalars.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace sim {

namespace {

constexpr std::string_view kHeader = R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">
)";

std::string escaped(std::string_view text) {
    std::string result;
    for (char character : text) {
        switch (character) {
        case '<':
            result += "&lt;";
            break;
        case '>':
            result += "&gt;";
            break;
        case '&':
            result += "&amp;";
            break;
        default:
            result += character;
        }
    }
    return result;
}

// The shortest text that reads back as the same number.
std::string formatReal(double number) {
    if (std::isnan(number)) return "nan";
    if (std::isinf(number)) return number > 0 ? "+infinity" : "-infinity";
    char text[32];
    auto end = std::to_chars(std::begin(text), std::end(text), number);
    return {text, end.ptr};
}

class XmlWriter {
public:
    std::string write(const Value &value) {
        text_ = kHeader;
        put(value);
        return text_ + "</plist>\n";
    }

private:
    void line(std::string_view content) { text_.append(depth_, '\t').append(content).append("\n"); }
    void element(const std::string &name, const std::string &content) {
        line("<" + name + ">" + content + "</" + name + ">");
    }

    void put(const Value &value) {
        if (value.isBool()) {
            line(value.boolean() ? "<true/>" : "<false/>");
        } else if (value.isInteger()) {
            element("integer", std::to_string(value.integer()));
        } else if (value.isReal()) {
            element("real", formatReal(value.number()));
        } else if (value.isString()) {
            element("string", escaped(value.string()));
        } else if (value.isDate()) {
            element("date", formatDate(value.date().seconds));
        } else if (value.isData()) {
            putData(value.data().bytes);
        } else if (value.isArray()) {
            putArray(value.array());
        } else if (value.isObject()) {
            putDictionary(value.object());
        } else {
            throw ValueError(std::string("no property list form for ") + value.kind());
        }
    }

    // Broken so that a line with its indentation, a tab counting eight, takes 76 columns.
    void putData(std::string_view bytes) {
        line("<data>");
        std::string digits = encodeBase64(bytes);
        size_t width = 76 - 8 * std::min<size_t>(depth_, 8);
        for (size_t at = 0; at < digits.size(); at += width) line(std::string_view(digits).substr(at, width));
        line("</data>");
    }

    void putArray(const Array &items) {
        if (items.empty()) return line("<array/>");
        line("<array>");
        ++depth_;
        for (const auto &item : items) put(item);
        --depth_;
        line("</array>");
    }

    void putDictionary(const Object &members) {
        if (members.empty()) return line("<dict/>");
        line("<dict>");
        ++depth_;
        for (const auto &[name, value] : members) {
            element("key", escaped(name));
            put(value);
        }
        --depth_;
        line("</dict>");
    }

    std::string text_;
    size_t depth_ = 0;
};

} // namespace

std::string toXmlPropertyList(const Value &value) { return XmlWriter().write(value); }

} // namespace sim

#include "Readable.hpp"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <set>

namespace sim {

namespace {

constexpr int kDeepest = 12;

bool isReserved(const std::string &word) {
    static const char *const words[] = {
        "and", "break", "do",  "else", "elseif", "end",    "false",  "for",  "function", "goto",  "if",
        "in",  "local", "nil", "not",  "or",     "repeat", "return", "then", "true",     "until", "while"};
    return std::ranges::count(words, word) > 0;
}

bool isName(const std::string &text) {
    auto fits = [](unsigned char letter) { return letter < 0x80 && (std::isalnum(letter) || letter == '_'); };
    return !text.empty() && !std::isdigit(static_cast<unsigned char>(text[0])) &&
           std::ranges::all_of(text, fits);
}

std::string escaped(char letter) {
    char text[5];
    snprintf(text, sizeof text, "\\%03d", static_cast<unsigned char>(letter));
    return text;
}

std::string rounded(double value) {
    char text[40];
    snprintf(text, sizeof text, "%.14g", value);
    return text;
}

// The shortest text that gives the same number; never that of an integer.
std::string shortest(double value) {
    if (std::isnan(value)) return "(0/0)";
    char text[40];
    for (int digits = 1; digits <= 17; ++digits) {
        snprintf(text, sizeof text, "%.*g", digits, value);
        if (std::stod(text) == value) break;
    }
    std::string result = text;
    return result.find_first_of(".e") == std::string::npos ? result + ".0" : result;
}

// Writes values in a script's notation: for a script, which reads the same value again, or for a person.
class Printer {
public:
    explicit Printer(bool exact) : exact_(exact) {}

    std::string value(const Value &value, int depth = 0) const {
        if (value.isNull()) return "nil";
        if (value.isBool()) return value.boolean() ? "true" : "false";
        if (value.isInteger()) return std::to_string(value.integer());
        if (value.isReal()) return number(value.number());
        if (value.isString()) return quoted(value.string());
        if (!exact_) {
            if (value.isData()) return "<" + std::to_string(value.data().bytes.size()) + " bytes>";
            if (value.isDate()) return "<date " + number(value.date().seconds) + ">";
            if (depth > kDeepest) return "{…}";
        }
        std::string items;
        if (value.isArray()) {
            for (const auto &item : value.array()) append(items, this->value(item, depth + 1));
        } else {
            for (const auto &[name, item] : value.object())
                append(items, key(name) + " = " + this->value(item, depth + 1));
        }
        return "{" + items + "}";
    }

    // For a person, keys that are no strings in the script come in brackets already.
    std::string key(const std::string &name) const {
        bool plain = exact_ ? isName(name) && !isReserved(name) : isName(name) || name.starts_with("[");
        return plain ? name : "[" + quoted(name) + "]";
    }

private:
    static void append(std::string &items, const std::string &item) {
        if (!items.empty()) items += ", ";
        items += item;
    }

    std::string number(double value) const {
        if (std::isinf(value)) return value < 0 ? "-math.huge" : "math.huge";
        return exact_ ? shortest(value) : rounded(value);
    }

    std::string quoted(const std::string &text) const {
        std::string result = "\"";
        for (char letter : text) {
            auto code = static_cast<unsigned char>(letter);
            if (exact_ && (code < 0x20 || code == 0x7f)) {
                result += escaped(letter);
            } else if (letter == '\n') {
                result += "\\n";
            } else {
                if (letter == '"' || letter == '\\') result += '\\';
                result += letter;
            }
        }
        return result + '"';
    }

    bool exact_;
};

size_t size(const Value &table) { return table.isArray() ? table.array().size() : table.object().size(); }
bool isTable(const Value &value) { return value.isArray() || value.isObject(); }

std::optional<std::string> difference(const Value &actual, const Value &wanted, const std::string &path);

std::optional<std::string> difference(const Array &actual, const Array &wanted, const std::string &path) {
    static const Value nothing;
    for (size_t i = 0; i < std::max(actual.size(), wanted.size()); ++i) {
        auto found =
            difference(i < actual.size() ? actual[i] : nothing, i < wanted.size() ? wanted[i] : nothing,
                       path + "[" + std::to_string(i + 1) + "]");
        if (found) return found;
    }
    return std::nullopt;
}

std::optional<std::string> difference(const Object &actual, const Object &wanted, const std::string &path) {
    static const Value nothing;
    std::set<std::string> names;
    for (const auto *members : {&actual, &wanted})
        for (const auto &member : *members) names.insert(member.first);
    auto member = [](const Object &members, const std::string &name) -> const Value & {
        auto found = members.find(name);
        return found == members.end() ? nothing : found->second;
    };
    for (const auto &name : names) {
        std::string step = Printer(false).key(name);
        auto found = difference(member(actual, name), member(wanted, name),
                                path + (step.starts_with("[") ? "" : ".") + step);
        if (found) return found;
    }
    return std::nullopt;
}

std::optional<std::string> difference(const Value &actual, const Value &wanted, const std::string &path) {
    if (actual.isArray() && wanted.isArray()) return difference(actual.array(), wanted.array(), path);
    if (actual.isObject() && wanted.isObject()) return difference(actual.object(), wanted.object(), path);
    bool bothEmpty = isTable(actual) && isTable(wanted) && size(actual) == 0 && size(wanted) == 0;
    bool sameNumber = actual.isNumber() && wanted.isNumber() && actual.number() == wanted.number();
    if (actual == wanted || bothEmpty || sameNumber) return std::nullopt;
    return (path.empty() ? "" : "at " + path + ": ") + readable(actual) + ", wanted " + readable(wanted);
}

} // namespace

std::string readable(const Value &value) { return Printer(false).value(value); }
std::string luaText(const Value &value) { return Printer(true).value(value); }

std::optional<std::string> firstDifference(const Value &actual, const Value &wanted) {
    return difference(actual, wanted, "");
}

} // namespace sim

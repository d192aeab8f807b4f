#include "LuaText.hpp"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdio>

namespace sim {

namespace {

bool isName(const std::string &text) {
    static const char *const reserved[] = {
        "and", "break", "do",  "else", "elseif", "end",    "false",  "for",  "function", "goto",  "if",
        "in",  "local", "nil", "not",  "or",     "repeat", "return", "then", "true",     "until", "while"};
    auto fits = [](unsigned char letter) { return letter < 0x80 && (std::isalnum(letter) || letter == '_'); };
    return !text.empty() && !std::isdigit(static_cast<unsigned char>(text[0])) &&
           std::ranges::all_of(text, fits) && !std::ranges::count(reserved, text);
}

std::string quoted(const std::string &text) {
    std::string result = "\"";
    for (char letter : text) {
        auto code = static_cast<unsigned char>(letter);
        if (letter == '"' || letter == '\\') {
            result += '\\';
            result += letter;
        } else if (code < 0x20 || code == 0x7f) {
            char escape[5];
            snprintf(escape, sizeof escape, "\\%03d", code);
            result += escape;
        } else {
            result += letter;
        }
    }
    return result + '"';
}

// The shortest text that gives the same number; never that of an integer.
std::string real(double value) {
    if (std::isnan(value)) return "(0/0)";
    if (std::isinf(value)) return value < 0 ? "-math.huge" : "math.huge";
    char text[40];
    for (int digits = 1; digits <= 17; ++digits) {
        snprintf(text, sizeof text, "%.*g", digits, value);
        if (std::stod(text) == value) break;
    }
    std::string result = text;
    return result.find_first_of(".e") == std::string::npos ? result + ".0" : result;
}

std::string joined(std::string result, const std::string &item) {
    return result.empty() ? item : result + ", " + item;
}

} // namespace

std::string luaText(const Value &value) {
    if (value.isNull()) return "nil";
    if (value.isBool()) return value.boolean() ? "true" : "false";
    if (value.isInteger()) return std::to_string(value.integer());
    if (value.isReal()) return real(value.number());
    if (value.isString()) return quoted(value.string());
    std::string items;
    if (value.isArray()) {
        for (const auto &item : value.array()) items = joined(std::move(items), luaText(item));
        return "{" + items + "}";
    }
    for (const auto &[name, item] : value.object())
        items = joined(std::move(items),
                       (isName(name) ? name : "[" + quoted(name) + "]") + " = " + luaText(item));
    return "{" + items + "}";
}

std::string luaCall(std::string_view name, const Array &arguments, std::string_view object) {
    std::string call = std::string(object) + ":" + std::string(name);
    bool oneTable = arguments.size() == 1 && (arguments[0].isArray() || arguments[0].isObject());
    if (oneTable) return call + luaText(arguments[0]);
    std::string list;
    for (const auto &argument : arguments) list = joined(std::move(list), luaText(argument));
    return call + "(" + list + ")";
}

} // namespace sim

#include "Readable.hpp"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <set>

namespace sim {

namespace {

constexpr int kDeepest = 12;

bool isName(const std::string &text) {
    auto fits = [](unsigned char letter) { return std::isalnum(letter) || letter == '_'; };
    return !text.empty() && !std::isdigit(static_cast<unsigned char>(text[0])) &&
           std::ranges::all_of(text, fits);
}

std::string quoted(const std::string &text) {
    std::string result = "\"";
    for (char letter : text) {
        if (letter == '"' || letter == '\\') result += '\\';
        if (letter == '\n') {
            result += "\\n";
        } else {
            result += letter;
        }
    }
    return result + '"';
}

// Keys that are no strings in the script come in brackets already.
std::string key(const std::string &name) {
    if (isName(name) || name.starts_with("[")) return name;
    return "[" + quoted(name) + "]";
}

std::string number(double value) {
    if (std::isinf(value)) return value < 0 ? "-math.huge" : "math.huge";
    char text[40];
    snprintf(text, sizeof text, "%.14g", value);
    return text;
}

std::string readable(const Value &value, int depth);

std::string listed(const Array &items, int depth) {
    std::string result = "{";
    for (const auto &item : items) result += (result.size() > 1 ? ", " : "") + readable(item, depth + 1);
    return result + "}";
}

std::string listed(const Object &members, int depth) {
    std::string result = "{";
    for (const auto &[name, item] : members)
        result += (result.size() > 1 ? ", " : "") + key(name) + " = " + readable(item, depth + 1);
    return result + "}";
}

std::string readable(const Value &value, int depth) {
    if (value.isNull()) return "nil";
    if (value.isBool()) return value.boolean() ? "true" : "false";
    if (value.isInteger()) return std::to_string(value.integer());
    if (value.isReal()) return number(value.number());
    if (value.isString()) return quoted(value.string());
    if (value.isData()) return "<" + std::to_string(value.data().bytes.size()) + " bytes>";
    if (value.isDate()) return "<date " + number(value.date().seconds) + ">";
    if (depth > kDeepest) return "{…}";
    return value.isArray() ? listed(value.array(), depth) : listed(value.object(), depth);
}

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
        std::string step = key(name);
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

std::string readable(const Value &value) { return readable(value, 0); }

std::optional<std::string> firstDifference(const Value &actual, const Value &wanted) {
    return difference(actual, wanted, "");
}

} // namespace sim

#include "OptionReader.hpp"

#include "Supervisor/Text/Readable.hpp"
#include "Supervisor/Text/Suggest.hpp"

#include <algorithm>

namespace sim {

namespace {

const Object &members(const Value &table, const std::string &where) {
    static const Object none;
    if (table.isNull() || (table.isArray() && table.array().empty())) return none;
    if (!table.isObject()) throw BootError(where + ": expected a table with names, got " + readable(table));
    return table.object();
}

} // namespace

OptionReader::OptionReader(const Value &table, std::string where, const std::vector<Described> &options)
    : options_(members(table, where)), where_(std::move(where)), known_(namesOf(options)) {}

const Value &OptionReader::any(const char *name) {
    static const Value null;
    if (!std::ranges::count(known_, name))
        throw std::logic_error(where_ + ": the option '" + name + "' is in no table");
    read_.insert(name);
    auto found = options_.find(name);
    return found == options_.end() ? null : found->second;
}

std::optional<bool> OptionReader::boolean(const char *name) {
    const Value &value = any(name);
    if (value.isNull()) return std::nullopt;
    if (!value.isBool()) expected(name, "true or false");
    return value.boolean();
}

std::optional<int64_t> OptionReader::integer(const char *name) {
    const Value &value = any(name);
    if (value.isNull()) return std::nullopt;
    if (!value.isInteger()) expected(name, "a whole number");
    return value.integer();
}

std::optional<std::string> OptionReader::string(const char *name) {
    const Value &value = any(name);
    if (value.isNull()) return std::nullopt;
    if (!value.isString()) expected(name, "a string");
    return value.string();
}

std::optional<Array> OptionReader::list(const char *name) {
    const Value &value = any(name);
    if (value.isNull()) return std::nullopt;
    if (value.isObject() && value.object().empty()) return Array{};
    if (!value.isArray()) expected(name, "a list");
    return value.array();
}

std::optional<std::vector<std::string>> OptionReader::strings(const char *name) {
    auto items = list(name);
    if (!items) return std::nullopt;
    std::vector<std::string> result;
    for (const auto &item : *items) {
        if (!item.isString()) expected(name, "a list of strings");
        result.push_back(item.string());
    }
    return result;
}

std::optional<Object> OptionReader::table(const char *name) {
    const Value &value = any(name);
    if (value.isNull()) return std::nullopt;
    if (value.isArray() && value.array().empty()) return Object{};
    if (!value.isObject()) expected(name, "a table with names");
    return value.object();
}

void OptionReader::finish() const {
    for (const auto &option : options_)
        if (!std::ranges::count(known_, option.first))
            fail("unknown option '" + option.first + "'" + suggestion(option.first, known_));
    for (const auto &name : known_)
        if (!read_.contains(name))
            throw std::logic_error(where_ + ": nobody reads the option '" + name + "'");
}

void OptionReader::fail(const std::string &what) const { throw BootError(where_ + ": " + what); }

void OptionReader::expected(const char *name, const char *wanted) const {
    fail("'" + std::string(name) + "' must be " + wanted + ", not " + readable(options_.find(name)->second));
}

} // namespace sim

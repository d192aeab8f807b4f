// Reads and validates a table of options: unknown names and values of the wrong type are refused.
#pragma once

#include "Runtime/Values/Value.hpp"

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace sim {

// A device that cannot be booted as asked; the text says what to change.
struct BootError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Every accessor marks its option as known and returns nothing when it is absent. Throws BootError.
class OptionReader {
public:
    // `where` names the table in messages: "boot", "boot: apps[2]".
    OptionReader(const Value &table, std::string where);

    std::optional<bool> boolean(const char *name);
    std::optional<int64_t> integer(const char *name);
    std::optional<std::string> string(const char *name);
    // A list; an empty table is one.
    std::optional<Array> list(const char *name);
    std::optional<std::vector<std::string>> strings(const char *name);
    // A table with names; an empty one is one.
    std::optional<Object> table(const char *name);
    // For eachField(): an absent option leaves the member as it is.
    template <typename Member>
    void operator()(const char *name, Member &member) {
        if (auto value = read(name, member)) member = std::move(*value);
    }
    // Of any kind; null when absent.
    const Value &any(const char *name);

    // To be called at the end: throws for an option that nobody asked for.
    void finish() const;

    [[noreturn]] void fail(const std::string &what) const;

private:
    auto read(const char *name, const bool &) { return boolean(name); }
    auto read(const char *name, const std::optional<bool> &) { return boolean(name); }
    auto read(const char *name, const int64_t &) { return integer(name); }
    auto read(const char *name, const std::optional<int64_t> &) { return integer(name); }
    auto read(const char *name, const std::string &) { return string(name); }
    auto read(const char *name, const std::vector<std::string> &) { return strings(name); }
    [[noreturn]] void expected(const char *name, const char *wanted) const;

    Object options_;
    std::string where_;
    std::vector<std::string> known_;
};

} // namespace sim
